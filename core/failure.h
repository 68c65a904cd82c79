// Failures: one exception type for everything that can go wrong while the building set runs.
// A failure is thrown once, by the operation that finds it. The few traps of the program are try/catch
// exactly where the behaviour has a trap; everything else reaches the top of the event, is shown and ends the program.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace tessaly {

enum class failurekind {
    filenotfound,     // no such file or folder
    fileaccess,       // the system refuses to read, write or delete it
    filealreadyopen,  // the channel is still in use
    inputpastend,     // a read behind the last field of a file
    overflow,         // a number outside the range of its place
    subscript,        // an index outside a table
    typemismatch,     // a text met arithmetic and is no number
    divisionbyzero,   // a quotient with divisor 0
    invalidcall,      // an operation given something it cannot work on
};

// The words of a kind as reports show them, such as "file not found".
std::string_view kindname(failurekind kind);

struct failure : std::exception {
    failure(failurekind failed, std::string why, std::string where = {});

    // Tells the location, for whoever knows it on the failure's way up: the first one's counts, which is the nearest.
    void addlocation(const std::string& where);

    // Place and detail, and all three, in one line, as shown.
    std::string message() const { return location.empty() ? detail : location + ": " + detail; }
    std::string report() const { return std::string(kindname(kind)) + ": " + message(); }

    const char* what() const noexcept override { return detail.c_str(); }

    failurekind kind;
    std::string detail;    // what was found and what was expected
    std::string location;  // where to mend it: file, line and field, or text box; empty where it is no location's fault
};

// The location of a row's number 1..10, such as "LINEG3:, row 4, second number".
std::string numberin(const std::string& row, int number);

// Runs step. An index outside a table was named by a figure of a data file, at location().
template <class locating, class procedure>
void locatesubscript(locating location, procedure step) {
    try {
        step();
    } catch (failure& f) {
        if (f.kind == failurekind::subscript) f.addlocation(location());
        throw;
    }
}

}  // namespace tessaly

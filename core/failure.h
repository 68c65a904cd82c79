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

    // Tells the place, for whoever knows it on the failure's way up: the first one's counts, which is the nearest.
    void tellplace(const std::string& where);

    // Place and detail, and all three, in one line, as shown.
    std::string told() const { return place.empty() ? detail : place + ": " + detail; }
    std::string report() const { return std::string(kindname(kind)) + ": " + told(); }

    const char* what() const noexcept override { return detail.c_str(); }

    failurekind kind;
    std::string detail;  // what was found and what was expected
    std::string place;   // where to mend it: file, line and field, or text box; empty where it is no place's fault
};

// Runs step. An index outside a table was named by a figure of a data file, at place().
template <class placing, class procedure>
void tellmisses(placing place, procedure step) {
    try {
        step();
    } catch (failure& f) {
        if (f.kind == failurekind::subscript) f.tellplace(place());
        throw;
    }
}

}  // namespace tessaly

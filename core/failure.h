// Failures: one exception type for everything that can go wrong while the building set runs. The operation that detects
// a failure throws it. A few operations continue after a failure and catch it. Every other exception leaves the event,
// is reported and ends the program.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace tessaly {

enum class failurekind {
    filenotfound,     // no such file or folder
    fileaccess,       // the system refuses to read, write or delete it
    filealreadyopen,  // the channel is in use
    inputpastend,     // a read past the last field of a file
    overflow,         // a number outside its range
    subscript,        // an index outside a table
    typemismatch,     // arithmetic on a text that is not a number
    divisionbyzero,   // a division by 0
    invalidcall,      // an operation on something that it cannot use
};

// Returns the name of a kind in reports, such as "file not found".
std::string_view kindname(failurekind kind);

class failure : public std::exception {
  public:
    // If the remedy is empty, the report gives the usual one of the kind.
    failure(failurekind itskind, std::string itsdetail, std::string itslocation = {}, std::string itsremedy = {});

    // Sets the location if it is empty.
    void addlocation(const std::string& added);

    // Returns the report, one line: "location: detail: remedy (kind)".
    const char* what() const noexcept override { return report.c_str(); }

    failurekind kind;
    std::string detail;    // what was found, and what was expected
    std::string location;  // file, line and field, or text box; empty if there is none
    std::string remedy;    // what the user can do

  private:
    void compose();
    std::string report;
};

// Runs step. Returns the report of the exception that ends it, of any type, or "" if step succeeds.
template <class procedure>
std::string reportof(procedure step) {
    try {
        step();
        return {};
    } catch (const std::exception& e) {
        return e.what();
    } catch (...) {
        return "an unknown exception";
    }
}

// Runs step. If step fails because of a bad subscript from a data file, adds location(), the location of that number.
template <class locator, class procedure>
void withsubscriptlocation(locator location, procedure step) {
    try {
        step();
    } catch (failure& f) {
        if (f.kind == failurekind::subscript) f.addlocation(location());
        throw;
    }
}

// ---- texts of reports ----

// Returns the location of a number in a row, such as "LINEG3:, row 4, second number". number: 1 to 10.
std::string numberlocation(const std::string& row, int number);

// Returns a text. If it is long, returns its beginning and its number of characters.
std::string excerpt(std::string_view text);

// Returns a path. If it is long, omits its middle, so that the folder and the end of the name stay readable.
std::string shortpath(std::string_view path);

}  // namespace tessaly

// Failures: one exception type for everything that can go wrong while the building set runs. The operation that detects
// a failure throws it. A few operations continue after a failure and catch it. Every other exception leaves the event,
// is reported and ends the program.
#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace tessaly {

enum class failurekind {
    filenotfound,     // no such file or folder
    fileaccess,       // the system refuses to read, write or delete it
    filealreadyopen,  // the channel is still in use
    inputpastend,     // a read past the last field of a file
    overflow,         // a number outside its range
    subscript,        // an index outside a table
    typemismatch,     // arithmetic on a text that is not a number
    divisionbyzero,   // a division by 0
    invalidcall,      // an operation given something it cannot work on
};

// The name of a kind in reports, such as "file not found".
std::string_view kindname(failurekind kind);

class failure : public std::exception {
  public:
    // why: what was found and what was expected. where: file, line and field, or text box; empty if there is none.
    // remedy: what the user can do; if empty, the usual remedy for the kind.
    failure(failurekind failed, std::string why, std::string where = {}, std::string remedy = {});

    // Adds the location unless the failure has one already.
    void addlocation(const std::string& where);

    // The report as one line: "location: detail: remedy (kind)".
    const char* what() const noexcept override { return report.c_str(); }

    failurekind kind;
    std::string detail, location, remedy;

  private:
    void compose();
    std::string report;
};

// Runs step; returns the report of the exception that ends it, whatever its type, or "" if there is none.
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

// Runs step. If step fails because a number from a data file is a bad subscript, adds location(), where that number is.
template <class locating, class procedure>
void withsubscriptlocation(locating location, procedure step) {
    try {
        step();
    } catch (failure& f) {
        if (f.kind == failurekind::subscript) f.addlocation(location());
        throw;
    }
}

// ---- texts of reports ----

// The location of the first to tenth number of a row, such as "LINEG3:, row 4, second number".
std::string numberlocation(const std::string& row, int number);

// The text; if it is long, its beginning and its number of characters.
std::string excerpt(std::string_view text);

// The path; if it is long, without its middle, so that the folder and the end of the name stay readable.
std::string shortpath(std::string_view path);

}  // namespace tessaly

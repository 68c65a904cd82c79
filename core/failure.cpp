// The words of failures.

#include "core/failure.h"

#include <utility>

namespace tessaly {

std::string_view kindname(failurekind kind) {
    switch (kind) {
    case failurekind::filenotfound: return "file not found";
    case failurekind::fileaccess: return "file access error";
    case failurekind::filealreadyopen: return "file already open";
    case failurekind::inputpastend: return "input past end of file";
    case failurekind::overflow: return "overflow";
    case failurekind::subscript: return "subscript out of range";
    case failurekind::typemismatch: return "type mismatch";
    case failurekind::divisionbyzero: return "division by zero";
    case failurekind::invalidcall: return "invalid call";
    }
    return "unknown failure";
}

failure::failure(failurekind failed, std::string why, std::string where)
    : kind(failed), detail(std::move(why)), location(std::move(where)) {}

void failure::addlocation(const std::string& where) {
    if (location.empty()) location = where;
}

std::string numberin(const std::string& row, int number) {
    constexpr const char* ordinals[] = {"first", "second",  "third",  "fourth", "fifth",
                                        "sixth", "seventh", "eighth", "ninth",  "tenth"};
    return row + ", " + ordinals[number - 1] + " number";
}

}  // namespace tessaly

// Words, quotes and escapes of script lines.

#include "player/scriptline.h"

#include <algorithm>

namespace tessaly {

namespace {

constexpr std::string_view blanks = " \t";

}  // namespace

scriptline::scriptline(std::string_view line) {
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
    all = left = line;
}

bool scriptline::atend() {
    left.remove_prefix(std::min(left.find_first_not_of(blanks), left.size()));
    return left.empty();
}

std::string_view scriptline::word() {
    if (atend()) return {};
    const std::string_view found = left.substr(0, left.find_first_of(blanks));
    left.remove_prefix(found.size());
    return found;
}

std::string_view scriptline::rest() {
    std::string_view found = left;
    if (!found.empty()) found.remove_prefix(1);
    left = {};
    return found;
}

std::string scriptline::filename() {
    if (atend()) throw scripterror("a file name was expected");
    if (left.front() == '"') {
        std::string name = quoted();
        expectend();
        return name;
    }
    const std::string_view found = left.substr(0, left.find_last_not_of(blanks) + 1);
    left = {};
    return std::string(found);
}

std::string scriptline::quoted() {
    if (atend() || left.front() != '"') throw scripterror("a text in double quotes was expected");
    std::string text;
    for (std::size_t at = 1; at < left.size(); ++at) {
        if (left[at] == '"') {
            left.remove_prefix(at + 1);
            return text;
        }
        if (left[at] != '\\') {
            text += left[at];
            continue;
        }
        switch (++at < left.size() ? left[at] : '\0') {
        case '"': text += '"'; break;
        case '\\': text += '\\'; break;
        case 'r': text += '\r'; break;
        case 'n': text += '\n'; break;
        default: throw scripterror("a backslash inside quotes must be followed by \" \\ r or n");
        }
    }
    throw scripterror("the closing double quote is missing");
}

void scriptline::expectend() {
    if (!atend()) throw scripterror("nothing more was expected, but this follows: " + std::string(left));
}

std::string inquotes(std::string_view text) {
    std::string written = "\"";
    for (const char c : text) {
        switch (c) {
        case '"': written += "\\\""; break;
        case '\\': written += "\\\\"; break;
        case '\r': written += "\\r"; break;
        case '\n': written += "\\n"; break;
        default: written += c;
        }
    }
    return written + '"';
}

}  // namespace tessaly

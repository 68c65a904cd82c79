// Words, quotes and escapes of script lines.

#include "player/scriptline.h"

#include <algorithm>

namespace tessaly {

namespace {

constexpr std::string_view blanks = " \t";

}  // namespace

scriptline::scriptline(std::string_view line) {
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
    complete = remaining = line;
}

bool scriptline::atend() {
    remaining.remove_prefix(std::min(remaining.find_first_not_of(blanks), remaining.size()));
    return remaining.empty();
}

std::string_view scriptline::takeword() {
    if (atend()) return {};
    const std::string_view found = remaining.substr(0, remaining.find_first_of(blanks));
    remaining.remove_prefix(found.size());
    return found;
}

std::string_view scriptline::takerest() {
    std::string_view found = remaining;
    if (!found.empty()) found.remove_prefix(1);
    remaining = {};
    return found;
}

std::string scriptline::takefilename() {
    if (atend()) throw scripterror("a file name was expected");
    if (remaining.front() == '"') {
        std::string name = takequoted();
        expectend();
        return name;
    }
    const std::string_view found = remaining.substr(0, remaining.find_last_not_of(blanks) + 1);
    remaining = {};
    return std::string(found);
}

std::string scriptline::takequoted() {
    if (atend() || remaining.front() != '"') throw scripterror("a text in double quotes was expected");
    std::string text;
    for (std::size_t at = 1; at < remaining.size(); ++at) {
        if (remaining[at] == '"') {
            remaining.remove_prefix(at + 1);
            return text;
        }
        if (remaining[at] != '\\') {
            text += remaining[at];
            continue;
        }
        switch (++at < remaining.size() ? remaining[at] : '\0') {
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
    if (!atend()) throw scripterror("nothing more was expected, but this follows: " + std::string(remaining));
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

// The words of failures. Texts from files enter reports, so characters that a terminal or a window would obey do not.

#include "core/failure.h"

#include "core/windows1252.h"

#include <algorithm>
#include <utility>

namespace tessaly {

namespace {

struct kindwords {
    failurekind kind;
    const char *name, *remedy;
};
constexpr kindwords kinds[] = {
    // clang-format off
    {failurekind::filenotfound,    "file not found",         "check the name, or put the file back"},
    {failurekind::fileaccess,      "file access error",      "check the rights of file and folder, and the space on the disk"},
    {failurekind::filealreadyopen, "file already open",      "start the program again"},
    {failurekind::inputpastend,    "input past end of file", "complete the file, or put the shipped one back"},
    {failurekind::overflow,        "overflow",               "correct the number"},
    {failurekind::subscript,       "subscript out of range", "correct the number"},
    {failurekind::typemismatch,    "type mismatch",          "a number such as 12.5 belongs here"},
    {failurekind::divisionbyzero,  "division by zero",       "enter another eye or focus"},
    {failurekind::invalidcall,     "invalid call",           "correct it"},
    // clang-format on
};

const kindwords& wordsof(failurekind kind) {
    return *std::find_if(std::begin(kinds), std::end(kinds), [kind](const kindwords& k) { return k.kind == kind; });
}

constexpr std::size_t maxshown = 60;  // characters of a text or path

bool begins(char c) { return !continuescharacter(c); }

std::size_t characters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins));
}

// The end of the first n characters, in bytes.
std::size_t endof(std::string_view text, std::size_t n) {
    std::size_t end = 0;
    for (std::size_t begun = 0; end < text.size() && (begun += begins(text[end])) <= n;) ++end;
    return end;
}

// Control characters, line ends, invisible characters and changes of direction become "?".
std::string printable(std::string_view text) {
    using namespace std::string_view_literals;
    static constexpr std::pair<std::string_view, std::string_view> hidden[] = {{"\0"sv, "\x1F"},
                                                                               {"\x7F", "\x7F"},
                                                                               {"\xC2\x80", "\xC2\x9F"},
                                                                               {"\xD8\x9C", "\xD8\x9C"},
                                                                               {"\xE2\x80\x8B", "\xE2\x80\x8F"},
                                                                               {"\xE2\x80\xA8", "\xE2\x80\xAE"},
                                                                               {"\xE2\x81\xA6", "\xE2\x81\xA9"}};
    std::string shown;
    while (!text.empty()) {
        const std::string_view next = text.substr(0, std::max<std::size_t>(endof(text, 1), 1));
        const bool hides = std::any_of(std::begin(hidden), std::end(hidden), [next](const auto& range) {
            return next >= range.first && next <= range.second;
        });
        shown += hides ? "?" : next;
        text.remove_prefix(next.size());
    }
    return shown;
}

}  // namespace

std::string_view kindname(failurekind kind) { return wordsof(kind).name; }

failure::failure(failurekind failed, std::string why, std::string where, std::string whattodo)
    : kind(failed), detail(std::move(why)), location(std::move(where)),
      remedy(whattodo.empty() ? wordsof(failed).remedy : std::move(whattodo)) {
    compose();
}

void failure::addlocation(const std::string& where) {
    if (!location.empty()) return;
    location = where;
    compose();
}

void failure::compose() {
    report = (location.empty() ? "" : location + ": ") + detail + ": " + remedy;
    report = printable(report) + " (" + wordsof(kind).name + ")";
}

std::string numberlocation(const std::string& row, int number) {
    constexpr const char* ordinals[] = {"first", "second",  "third",  "fourth", "fifth",
                                        "sixth", "seventh", "eighth", "ninth",  "tenth"};
    return row + ", " + ordinals[number - 1] + " number";
}

std::string excerpt(std::string_view text) {
    const std::size_t count = characters(text);
    if (count <= maxshown) return std::string(text);
    return std::string(text.substr(0, endof(text, maxshown))) + "... (" + std::to_string(count) + " characters)";
}

std::string shortpath(std::string_view path) {
    const std::size_t count = characters(path);
    if (count <= maxshown) return std::string(path);
    return std::string(path.substr(0, endof(path, maxshown / 2))) + "..." +
           std::string(path.substr(endof(path, count - maxshown / 2)));
}

}  // namespace tessaly

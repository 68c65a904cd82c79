// The wording of failures. Reports quote texts from files, so characters that would control a terminal or a window are
// replaced.

#include "core/failure.h"

#include "core/characters.h"

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

// Replaces control characters, line ends, invisible characters and changes of direction with "?".
std::string printable(std::string_view text) {
    using namespace std::string_view_literals;
    static constexpr std::pair<std::string_view, std::string_view> unprintable[] = {
        // clang-format off
        {"\0"sv, "\x1F"}, {"\x7F", "\x7F"}, {"\xC2\x80", "\xC2\x9F"}, {"\xD8\x9C", "\xD8\x9C"},
        {"\xE2\x80\x8B", "\xE2\x80\x8F"}, {"\xE2\x80\xA8", "\xE2\x80\xAE"}, {"\xE2\x81\xA6", "\xE2\x81\xA9"},
        // clang-format on
    };
    std::string result;
    while (!text.empty()) {
        const std::string_view character = firstcharacters(text, 1);
        const bool replaced =
            std::any_of(std::begin(unprintable), std::end(unprintable), [character](const auto& range) {
                return character >= range.first && character <= range.second;
            });
        result += replaced ? "?" : character;
        text.remove_prefix(character.size());
    }
    return result;
}

}  // namespace

std::string_view kindname(failurekind kind) { return wordsof(kind).name; }

failure::failure(failurekind itskind, std::string itsdetail, std::string itslocation, std::string itsremedy)
    : kind(itskind), detail(std::move(itsdetail)), location(std::move(itslocation)),
      remedy(itsremedy.empty() ? wordsof(itskind).remedy : std::move(itsremedy)) {
    compose();
}

void failure::addlocation(const std::string& added) {
    if (!location.empty()) return;
    location = added;
    compose();
}

void failure::compose() {
    report = printable((location.empty() ? "" : location + ": ") + detail + ": " + remedy);
    report += " (" + std::string(kindname(kind)) + ")";
}

std::string numberlocation(const std::string& row, int number) {
    constexpr const char* ordinals[] = {"first", "second",  "third",  "fourth", "fifth",
                                        "sixth", "seventh", "eighth", "ninth",  "tenth"};
    return row + ", " + ordinals[number - 1] + " number";
}

std::string excerpt(std::string_view text) {
    const std::size_t count = charactercount(text);
    if (count <= maxshown) return std::string(text);
    return std::string(firstcharacters(text, maxshown)) + "... (" + std::to_string(count) + " characters)";
}

std::string shortpath(std::string_view path) {
    const std::size_t count = charactercount(path);
    if (count <= maxshown) return std::string(path);
    const std::string_view start = firstcharacters(path, maxshown / 2),
                           dropped = firstcharacters(path, count - maxshown / 2);
    return std::string(start) + "..." + std::string(path.substr(dropped.size()));
}

}  // namespace tessaly

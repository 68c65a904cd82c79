// Windows-1252 agrees with the first 256 characters of Unicode, except for 0x80..0x9F.

#include "core/characters.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace tessaly {

namespace {

constexpr char32_t from0x80[] = {
    // clang-format off
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    // clang-format on
};
static_assert(std::size(from0x80) == 0x20);

bool continuescharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// Returns the UTF-8 text of a byte of Windows-1252: up to three bytes, because its characters are below 0x10000.
std::string characterof(char byte) {
    const auto number = static_cast<unsigned char>(byte);
    const char32_t character = number >= 0x80 && number < 0xA0 ? from0x80[number - 0x80] : char32_t{number};
    const auto text = [](std::initializer_list<char32_t> bytes) { return std::string(bytes.begin(), bytes.end()); };
    if (character < 0x80) return text({character});
    if (character < 0x800) return text({0xC0 | character >> 6, 0x80 | (character & 0x3F)});
    return text({0xE0 | character >> 12, 0x80 | (character >> 6 & 0x3F), 0x80 | (character & 0x3F)});
}

// Returns the byte of Windows-1252 for a character in UTF-8, "?" if there is none.
char byteof(std::string_view character) {
    for (int byte = 0; byte < 256; ++byte)
        if (characterof(static_cast<char>(byte)) == character) return static_cast<char>(byte);
    return '?';
}

}  // namespace

std::size_t charactercount(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), continuescharacter));
}

std::string_view firstcharacters(std::string_view text, std::size_t n) {
    for (std::size_t end = 0, count = 0; end < text.size(); ++end)
        if (!continuescharacter(text[end]) && ++count > n) return text.substr(0, end);
    return text;
}

std::string towindows1252(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const std::string_view character = firstcharacters(text, 1);
        bytes += byteof(character);
        text.remove_prefix(character.size());
    }
    return bytes;
}

std::string fromwindows1252(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) text += characterof(byte);
    return text;
}

}  // namespace tessaly

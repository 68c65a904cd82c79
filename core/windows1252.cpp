// Windows-1252 agrees with the first 256 characters of Unicode, except for 0x80..0x9F.

#include "core/windows1252.h"

#include <iterator>

namespace tessaly {

namespace {

constexpr char32_t fromeighty[] = {
    // clang-format off
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    // clang-format on
};
static_assert(std::size(fromeighty) == 0x20);

constexpr char32_t nocharacter = 0xFFFFFFFF;

// Removes the first character from a UTF-8 text and returns it. For an invalid lead byte it removes that byte only.
char32_t takecharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (lead < 0x80) return lead;
    const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
    if (more == 0) return nocharacter;
    char32_t character = lead & (0x3Fu >> more);
    for (int i = 0; i < more; ++i) {
        if (text.empty() || !continuescharacter(text.front())) return nocharacter;
        character = character << 6 | (static_cast<unsigned char>(text.front()) & 0x3Fu);
        text.remove_prefix(1);
    }
    return character;
}

char byteof(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    for (unsigned i = 0; i < std::size(fromeighty); ++i)
        if (fromeighty[i] == character) return static_cast<char>(0x80 + i);
    return '?';
}

char32_t characterof(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? fromeighty[byte - 0x80] : char32_t{byte};
}

// Appends a character as UTF-8. All characters of the set are below 0x10000, so three bytes are enough.
void append(std::string& text, char32_t character) {
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0 | character >> 6);
        add(0x80 | (character & 0x3F));
    } else {
        add(0xE0 | character >> 12);
        add(0x80 | (character >> 6 & 0x3F));
        add(0x80 | (character & 0x3F));
    }
}

}  // namespace

std::string towindows1252(std::string_view text) {
    std::string bytes;
    while (!text.empty()) bytes += byteof(takecharacter(text));
    return bytes;
}

std::string fromwindows1252(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) append(text, characterof(static_cast<unsigned char>(byte)));
    return text;
}

}  // namespace tessaly

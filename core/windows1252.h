// The single-byte character set Windows-1252, in which the view records of captures are written. Texts in memory are
// UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tessaly {

// Returns whether a byte of UTF-8 continues a character.
inline bool continuescharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// Converts UTF-8 to Windows-1252. A character outside that set, or a byte that is not valid UTF-8, becomes "?".
std::string towindows1252(std::string_view text);

// Converts Windows-1252 to UTF-8. The five bytes without a character become the control characters of the same number.
std::string fromwindows1252(std::string_view bytes);

}  // namespace tessaly

// The single-byte Windows character set (1252), in which view records are written; all texts in memory are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tessaly {

// Whether a byte of UTF-8 goes on with a character that one before it began.
inline bool continuescharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// A UTF-8 text in Windows-1252: a character outside it becomes "?", and so does a byte that is no UTF-8.
std::string towindows1252(std::string_view text);

// Bytes of Windows-1252 as UTF-8. The five bytes without a character there come back as the control character of
// their number.
std::string fromwindows1252(std::string_view bytes);

}  // namespace tessaly

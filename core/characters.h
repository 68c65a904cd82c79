// The characters of texts. Texts in memory are UTF-8; the view records of captures are written in Windows-1252, a
// character set with one byte per character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessaly {

// Returns the number of characters of a UTF-8 text.
std::size_t charactercount(std::string_view text);

// Returns the first n characters of a UTF-8 text, or all of it if it has fewer.
std::string_view firstcharacters(std::string_view text, std::size_t n);

// Converts UTF-8 to Windows-1252. A character outside that set and an invalid sequence of bytes become "?".
std::string towindows1252(std::string_view text);

// Converts Windows-1252 to UTF-8. The five bytes without a character become the control characters of the same number.
std::string fromwindows1252(std::string_view bytes);

}  // namespace tessaly

// Bitmap files as captures are kept: 24 bits a pixel, no compression, 96 dots to the inch. The same picture is the same
// file on every machine, whatever its screen says.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessaly {

// A picture in memory.
struct bitmap {
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;  // row after row from the top, 0xffRRGGBB
};

// Writes the picture; the file takes its name only when it is whole, and the one that was there before stays until
// then. Fails with file access error.
void writebitmap(const bitmap& picture, const std::string& path);

// Reads such a file. Fails with file not found or file access error, and with invalid call for a file that is another
// kind of picture or none, or not whole.
bitmap readbitmap(const std::string& path);

}  // namespace tessaly

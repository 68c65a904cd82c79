// Bitmap files, the format in which captures are saved: 24 bits per pixel, uncompressed, 96 dots per inch. The bytes of
// a picture's file are the same on every machine, whatever the resolution of the screen.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessaly {

// A picture in memory.
struct bitmap {
    int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;  // row by row from the top, 0xffRRGGBB
};

// Writes the picture to a file, with replacefile of core/wholefile. Fails with file access error, for
// example if the folder is missing.
void writebitmap(const bitmap& picture, const std::string& path);

// Reads a file of this format. Fails with file not found, with file access error if it cannot be read, is not a regular
// file or has more than 64 MB, and with invalid call if it does not have this format or is truncated.
bitmap readbitmap(const std::string& path);

}  // namespace tessaly

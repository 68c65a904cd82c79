// Bitmap files, the format captures are saved in: 24 bits per pixel, uncompressed, 96 dots per inch. A picture gives
// the same bytes on every machine, whatever the screen's resolution.
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

// Writes the picture as a file. An existing file is replaced only when the new one is complete, see core/wholefile.
// Fails with file access error, also if the folder is missing or takes no new name.
void writebitmap(const bitmap& picture, const std::string& path);

// Reads such a file. Fails with file not found, with file access error if it cannot be read, is no regular file or has
// more than 64 MB, and with invalid call if it is not a bitmap of this format or is truncated.
bitmap readbitmap(const std::string& path);

}  // namespace tessaly

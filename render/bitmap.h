// Bitmap files as captures are kept: 24 bits a pixel, no compression, 96 dots to the inch. The same picture is the same
// file on every machine, whatever its screen says.
#pragma once

#include "render/raster.h"

#include <string>

namespace tessaly {

// The bytes of the image's bitmap file.
std::string bitmapof(const raster& image);

// Writes the image; the file takes its name only when it is whole, and the one that was there before stays until then.
// Fails with file access error.
void writebitmap(const raster& image, const std::string& path);

// Lays such a file over the image from the upper left. Fails with file not found or file access error, and with invalid
// call for a file that is another kind of picture or none, or not whole.
void readbitmap(raster& image, const std::string& path);

}  // namespace tessaly

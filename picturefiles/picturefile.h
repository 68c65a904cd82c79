// Picture files through Qt Gui: BMP, PNG, JPEG and GIF are read, BMP and PNG are written.
#pragma once

#include "render/raster.h"

#include <string>

namespace tessaly {

// Sets readpicture of render/raster to a function that reads a BMP, PNG, JPEG or GIF file, at most the part that
// viewport can show. It fails with file not found, with file access error if the file cannot be read, is not a
// regular file or has more than 64 MB, and with invalid call if it is not such a picture, is truncated or has more than
// 16 million pixels.
void usepicturefiles();

// Writes the image as PNG or BMP, determined by the extension of path. Fails with file access error, also for any other
// extension; an existing file is then unchanged.
void savepicture(const raster& image, const std::string& path);

}  // namespace tessaly

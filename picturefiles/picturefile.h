// Picture files through the image library.
#pragma once

#include "render/raster.h"

#include <string>

namespace tessaly {

// Sets readpicture of render/raster: from here on any picture that the library knows is read.
void usepicturefiles();

// Writes the image as PNG or BMP by the path's extension; fails with file access error.
void savepicture(const raster& image, const std::string& path);

}  // namespace tessaly

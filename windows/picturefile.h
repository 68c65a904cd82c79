// Picture files through the image library: what raster's save and setpicture use.
#pragma once

#include "render/raster.h"

#include <string>

namespace tessaly {

// Sets writepicture and readpicture of render/raster.
void usepicturefiles();

// Writes the image as PNG or BMP by the path's extension; fails with file access error.
void savepicture(const raster& image, const std::string& path);

}  // namespace tessaly

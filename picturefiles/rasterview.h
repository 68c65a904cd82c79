// A raster as a QImage.
#pragma once

#include "render/raster.h"

#include <QImage>

namespace tessaly {

// Returns a QImage that shares the raster's pixels; the raster must outlive it.
inline QImage viewof(const raster& image) {
    return QImage(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height, image.width * 4,
                  QImage::Format_RGB32);
}

}  // namespace tessaly

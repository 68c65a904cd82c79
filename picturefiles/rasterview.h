// An image in memory as the toolkit's image library takes it.
#pragma once

#include "render/raster.h"

#include <QImage>

namespace tessaly {

// The image's own pixels, not copied: it must outlive what is done with them.
inline QImage viewof(const raster& image) {
    return QImage(reinterpret_cast<const uchar*>(image.pixels()), image.width(), image.height(), image.width() * 4,
                  QImage::Format_RGB32);
}

}  // namespace tessaly

// The persistent image of a picture box in memory, with exact lines. A line's ends are rounded to the nearest pixel
// (halves up). In each column, or in each row if the line is steep, it lights the pixel nearest to it (halves up).
// Neither the order of the ends nor clipping changes a pixel.
#pragma once

#include "render/bitmap.h"
#include "render/surface.h"

#include <functional>

namespace tessaly {

class raster : public surface, public bitmap {
  public:
    raster(int itswidth, int itsheight);  // a white image

    void line(float x1, float y1, float x2, float y2, colour c) override;
    void drawbetween(const facecorners& f, int n, colour c) override;  // omits lines that repeat the one before
    void save(const std::string& path) override;
    void setpicture(const std::string& path) override;

    void clear();  // fills the image with white
};

// Reads a picture file. Fails as surface::setpicture does. The engine alone reads only the bitmaps that it writes; the
// program sets this to a function that reads more formats.
inline std::function<bitmap(const std::string& path)> readpicture = readbitmap;

}  // namespace tessaly

// A surface whose image is in memory. Both ends of a line are rounded to the nearest pixel (halves up). Between them,
// the pixel nearest to the line is set in each column, or in each row if the line is steep (halves up). Neither the
// order of the ends nor clipping changes a pixel.
#pragma once

#include "render/bitmap.h"
#include "render/surface.h"

#include <functional>

namespace tessaly {

class raster : public surface, public bitmap {
  public:
    raster(int itswidth, int itsheight);  // a white image

    void line(float x1, float y1, float x2, float y2, colour c) override;
    void drawbetween(const facecorners& f, int n, colour c) override;  // skips repeated lines
    void save(const std::string& path) override;
    void setpicture(const std::string& path) override;

    void clear();  // fills the image with white
};

// Reads a picture file. Fails as surface::setpicture does. readbitmap reads only the bitmaps that writebitmap writes;
// the program sets this to a function that reads more formats.
inline std::function<bitmap(const std::string& path)> readpicture = readbitmap;

}  // namespace tessaly

// The persistent image in memory behind a picture box, with exact lines: the end points are rounded to the nearest
// pixel (halves up), the line between them lights on each column (or row, where it is steep) the pixel nearest to it
// (halves up), whichever end comes first, and clipping never moves a pixel.
#pragma once

#include "render/bitmap.h"
#include "render/surface.h"

#include <cstdint>
#include <functional>

namespace tessaly {

class raster : public surface {
  public:
    raster(int width, int height);  // white

    void line(float x1, float y1, float x2, float y2, colour c) override;
    void drawbetween(const facecorners& f, int n, colour c) override;  // no line twice in a row
    void save(const std::string& path) override;
    void setpicture(const std::string& path) override;

    int width() const { return image.width; }
    int height() const { return image.height; }
    const std::uint32_t* pixels() const { return image.pixels.data(); }  // row after row, 0xffRRGGBB
    std::uint32_t* pixels() { return image.pixels.data(); }
    const bitmap& picture() const { return image; }
    colour at(int x, int y) const;
    void clear();  // white again

  private:
    bitmap image;
};

// Reads a picture file; fails as surface::setpicture does. By itself the engine reads bitmaps as it writes them; the
// program lends it a library that knows more kinds.
extern std::function<bitmap(const std::string& path)> readpicture;

}  // namespace tessaly

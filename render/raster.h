// The persistent image in memory behind a picture box, with exact lines. The ends are rounded to the nearest pixel
// (halves up). Of each column, or row if the line is steep, a line lights the pixel nearest to it (halves up). Neither
// the order of the ends nor clipping changes a pixel.
#pragma once

#include "render/bitmap.h"
#include "render/surface.h"

#include <cstdint>
#include <functional>

namespace tessaly {

class raster : public surface {
  public:
    raster(int width, int height);  // fills the image with white

    void line(float x1, float y1, float x2, float y2, colour c) override;
    void drawbetween(const facecorners& f, int n, colour c) override;  // omits lines that repeat the one before
    void save(const std::string& path) override;
    void setpicture(const std::string& path) override;

    int width() const { return image.width; }
    int height() const { return image.height; }
    const std::uint32_t* pixels() const { return image.pixels.data(); }  // row after row, 0xffRRGGBB
    std::uint32_t* pixels() { return image.pixels.data(); }
    const bitmap& picture() const { return image; }
    colour at(int x, int y) const;
    void clear();  // fills the image with white

  private:
    bitmap image;
};

// Reads a picture file. Failures: see surface::setpicture. The engine alone reads only the bitmaps that it writes; the
// program replaces this function by one for more formats.
extern std::function<bitmap(const std::string& path)> readpicture;

}  // namespace tessaly

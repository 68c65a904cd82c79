// Surfaces for benchmarks: one draws with QPainter, one draws nothing, and one counts pixels.
#pragma once

#include "render/raster.h"

#include <QImage>
#include <QPainter>
#include <cstdint>
#include <vector>

namespace tessaly {

// Draws every line with one call of QPainter, without antialiasing.
class painterimage : public surface {
  public:
    painterimage();
    void line(float x1, float y1, float x2, float y2, colour c) override;
    void save(const std::string&) override {}
    void setpicture(const std::string&) override {}

  private:
    QImage image;
    QPainter painter;
    colour pencolour;
};

// Draws nothing, so that only the cost of everything else remains.
class nosurface : public surface {
  public:
    void line(float, float, float, float, colour) override {}
    void drawbetween(const facecorners&, int, colour) override {}
    void save(const std::string&) override {}
    void setpicture(const std::string&) override {}
};

// Counts the pixels of all lines, including those that fill faces. A pixel drawn twice counts twice.
class pixelcounter : public nosurface {
  public:
    void line(float x1, float y1, float x2, float y2, colour c) override;
    void drawbetween(const facecorners& f, int n, colour c) override { surface::drawbetween(f, n, c); }
    std::int64_t pixels = 0;

  private:
    bitmap image{viewportwidth, viewportheight, std::vector<std::uint32_t>(viewportwidth* viewportheight)};
};

}  // namespace tessaly

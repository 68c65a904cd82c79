// The surfaces that a benchmark draws on beside the program's own: the same lines through QPainter, none at all, and
// what the limit is made of.
#pragma once

#include "render/raster.h"

#include <QImage>
#include <QPainter>
#include <cstdint>

namespace tessaly {

// Every line one call of QPainter, without antialiasing. clipped: with the painter's clip rectangle set.
class painterimage : public surface {
  public:
    explicit painterimage(bool clipped);
    void line(float x1, float y1, float x2, float y2, colour c) override;
    void save(const std::string&) override {}
    void setpicture(const std::string&) override {}

  private:
    QImage image;
    QPainter painter;
    colour pencolour;
};

// Draws nothing: what remains is the cost of everything but drawing.
class nosurface : public surface {
  public:
    void line(float, float, float, float, colour) override {}
    void drawbetween(const facecorners&, int, colour) override {}
    void save(const std::string&) override {}
    void setpicture(const std::string&) override {}
};

// Counts the pixels that the lines light one by one, those lit twice twice.
class pixelcounter : public nosurface {
  public:
    void line(float x1, float y1, float x2, float y2, colour c) override;
    void drawbetween(const facecorners& f, int n, colour c) override { surface::drawbetween(f, n, c); }
    std::int64_t pixels = 0, lines = 0;
};

}  // namespace tessaly

// The drawing surface: a picture box with a persistent image, one drawing unit a pixel, x right and y down, origin at
// the top left corner. What falls outside is discarded. The logic draws on it and never asks what is behind it.
#pragma once

#include "core/colour.h"

#include <string>

namespace tessaly {

// The corners of a solid face in viewport pixels; 1-2 and 3-4 are opposite edges, and so are 1-3 and 2-4.
struct facecorners {
    double x1, y1, x2, y2, x3, y3, x4, y4;
};

class surface {
  public:
    virtual ~surface() = default;

    // One straight line, 1 pixel wide, opaque, both ends included.
    virtual void line(float x1, float y1, float x2, float y2, colour c) = 0;

    // The lines between edge 1-2 and edge 3-4 at t/n for t = 0..n.
    virtual void drawbetween(const facecorners& f, int n, colour c);

    // Saves the image as an uncompressed bitmap file; path as users write it. Fails with file access error.
    virtual void save(const std::string& path) = 0;

    // Makes a bitmap file the background picture: unscaled at the top left, later drawing goes on top of it.
    // Fails with file not found, with invalid call where the file is no picture.
    virtual void setpicture(const std::string& path) = 0;

    // Brings what was drawn to the screen at once, in the middle of an event.
    virtual void flush() {}

    // Horizontal lines from x1 to x2, one for each y from y1 to y2 ascending.
    void fillrows(int x1, int x2, int y1, int y2, colour c);

    // The fill of a face: a sweep between edges 1-2 and 3-4, then one between edges 1-3 and 2-4.
    void fillface(const facecorners& f, int n, colour c);
};

// The building's surface and the progress strip of the solid replays, in pixels. Set by the program.
constexpr int viewportwidth = 897, viewportheight = 581;
constexpr int progresswidth = 17, progressheight = 705;
extern surface* viewportsurface;
extern surface* progresssurface;

}  // namespace tessaly

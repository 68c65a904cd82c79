// The drawing surface: a picture box with a persistent image. Units are pixels, x to the right and y down from the top
// left corner. Pixels outside the box are discarded. The logic draws through this interface and does not know its
// implementation.
#pragma once

#include "core/colour.h"

#include <string>

namespace tessaly {

// The corners of a solid face in pixels. Edges 1-2 and 3-4 are opposite, and so are edges 1-3 and 2-4.
struct facecorners {
    double x1, y1, x2, y2, x3, y3, x4, y4;
};

class surface {
  public:
    virtual ~surface() = default;

    // Draws a straight, opaque line that is 1 pixel wide and includes both ends.
    virtual void line(float x1, float y1, float x2, float y2, colour c) = 0;

    // Draws n + 1 lines: for t = 0..n, from the point at t / n of edge 1-2 to the point at t / n of edge 3-4. n is at
    // least 1.
    virtual void drawbetween(const facecorners& f, int n, colour c);

    // Saves the image as an uncompressed bitmap file. path is written as users see it. Fails with file access error.
    virtual void save(const std::string& path) = 0;

    // Draws a picture file, unscaled, at the top left. Later lines are drawn over it. Fails with file not found, with
    // file access error if the file cannot be read, and with invalid call if it is not a picture that can be shown.
    virtual void setpicture(const std::string& path) = 0;

    // Shows the image on the screen at once, not only after the current event.
    virtual void flush() {}

    // Draws horizontal lines from x1 to x2, one for each y from y1 to y2 ascending.
    void fillrows(int x1, int x2, int y1, int y2, colour c);

    // Fills a face: draws between edges 1-2 and 3-4, then between edges 1-3 and 2-4.
    void fillface(const facecorners& f, int n, colour c);
};

// The picture of the building and the progress strip of solid replays: their sizes in pixels, and their surfaces, which
// the program sets.
constexpr int viewportwidth = 897, viewportheight = 581;
constexpr int progresswidth = 17, progressheight = 705;
inline surface* viewportsurface = nullptr;
inline surface* progresssurface = nullptr;

}  // namespace tessaly

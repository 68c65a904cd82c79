// Lines in whole pixels, clipped to an image. They are exact for ends in any order and up to exactlimit. A line lights
// one pixel for each step along its longer axis. The other coordinate is rounded to the nearest pixel, halves up.
#pragma once

#include "render/bitmap.h"

#include <cmath>
#include <cstdint>

namespace tessaly {

// Up to this coordinate, in pixels, 64 bits are enough: the products in drawpixels stay below 2^62.
constexpr float exactlimit = 536870912.0F;  // 2^29

struct pixelline {
    int x1, y1, x2, y2;
};

// Returns the nearest whole pixel, halves up. |coordinate| <= exactlimit.
inline int nearestpixel(float coordinate) {
    const double shifted = static_cast<double>(coordinate) + 0.5;
    const int truncated = static_cast<int>(shifted);
    return truncated - (shifted < truncated ? 1 : 0);
}

// Rounds both ends of a line to pixels. A line with an end beyond exactlimit is clipped to that range first. Returns
// false if nothing can be drawn: an end is not finite, or the whole line is outside the range.
bool topixels(float x1, float y1, float x2, float y2, pixelline& l);

// Lights the pixels of the line that are inside the image and returns their number.
int drawpixels(const pixelline& l, bitmap& image, std::uint32_t pixel);

}  // namespace tessaly

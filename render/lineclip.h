// The part of a line that an image shows, in whole pixels: exact, whichever end comes first and however far the ends
// lie outside, up to nearline. The longer axis is walked pixel by pixel; the other coordinate is the nearest pixel,
// halves up.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace tessaly {

// Ends up to here, in pixels, are worked in 64 bits: the products below stay under 2^62.
constexpr float nearline = 536870912;  // 2^29

struct pixelline {
    int x1, y1, x2, y2;
    bool operator==(const pixelline&) const = default;
};

struct linepart {
    bool steep;                      // walked along y, one pixel a row; otherwise along x, one pixel a column
    int first, last;                 // columns of the image, or rows where steep
    int minor;                       // row, or column where steep, of the pixel at first
    int direction;                   // +1 or -1: the way in which minor moves
    std::int64_t rest, step, whole;  // at each pixel rest grows by step; from whole on minor moves and whole goes off
};

// The nearest whole pixel, halves up. |coordinate| <= nearline.
inline int nearestpixel(float coordinate) {
    const double shifted = static_cast<double>(coordinate) + 0.5;
    const int cut = static_cast<int>(shifted);
    return cut - (shifted < cut ? 1 : 0);
}

// The same for a line with an end beyond nearline, cut to its reach.
bool cutpixels(double x1, double y1, double x2, double y2, pixelline& l);

// A line's ends as whole pixels; false where nothing of it can be drawn: an end that is no number, or all of it beyond
// every picture.
inline bool wholepixels(float x1, float y1, float x2, float y2, pixelline& l) {
    if (!(std::abs(x1) <= nearline && std::abs(y1) <= nearline && std::abs(x2) <= nearline && std::abs(y2) <= nearline))
        return cutpixels(x1, y1, x2, y2, l);
    l = {nearestpixel(x1), nearestpixel(y1), nearestpixel(x2), nearestpixel(y2)};
    return true;
}

inline std::int64_t floordivided(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t quotient = dividend / divisor;
    return quotient - (dividend % divisor < 0 ? 1 : 0);  // divisor > 0
}

// What an image of wide x high pixels shows of the line; false: nothing.
inline bool visiblepart(const pixelline& l, int wide, int high, linepart& part) {
    int a1 = l.x1, b1 = l.y1, a2 = l.x2, b2 = l.y2;  // a along the longer axis, b along the other
    int alength = wide, blength = high;
    part.steep = std::abs(b2 - b1) > std::abs(a2 - a1);
    if (part.steep) {
        std::swap(a1, b1);
        std::swap(a2, b2);
        std::swap(alength, blength);
    }
    if (a1 > a2) {
        std::swap(a1, a2);
        std::swap(b1, b2);
    }
    if (a2 < 0 || a1 >= alength || (b1 < 0 && b2 < 0) || (b1 >= blength && b2 >= blength)) return false;

    // With u pixels walked from a1, minor = b1 + direction * moves, where 2 * run * moves <= 2 * climb * u + half. A
    // half goes up: towards direction where that is +1, and not before one more than the half where it is -1.
    const std::int64_t run = a2 - a1, climb = std::abs(b2 - b1);
    part.direction = b2 >= b1 ? 1 : -1;
    part.step = 2 * climb;
    part.whole = 2 * run;
    const std::int64_t half = part.direction > 0 ? run : run - 1;
    std::int64_t from = a1 < 0 ? -static_cast<std::int64_t>(a1) : 0;
    std::int64_t to = (a2 >= alength ? alength - 1 : a2) - static_cast<std::int64_t>(a1);
    // The least u with that many moves, for a line that enters and leaves by the other axis.
    const auto reached = [&](std::int64_t moves) { return -floordivided(half - moves * part.whole, part.step); };
    const std::int64_t enters = part.direction > 0 ? -static_cast<std::int64_t>(b1) : b1 - (blength - 1);
    const std::int64_t leaves = part.direction > 0 ? blength - static_cast<std::int64_t>(b1) : b1 + std::int64_t(1);
    if (enters > 0) from = std::max(from, reached(enters));
    if (climb >= leaves) to = std::min(to, reached(leaves) - 1);
    if (from > to) return false;

    part.first = static_cast<int>(a1 + from);
    part.last = static_cast<int>(a1 + to);
    part.minor = b1;
    part.rest = half;
    if (from > 0) {
        const std::int64_t grown = part.step * from + half, moves = grown / part.whole;
        part.minor = static_cast<int>(b1 + part.direction * moves);
        part.rest = grown - moves * part.whole;
    }
    return true;
}

}  // namespace tessaly

// Lines with an end beyond exactlimit are clipped in double precision, starting at the nearer end. If only one end is
// that far away, the pixels are the exact ones, except perhaps at the border. No real building has such lines.

#include "render/lineclip.h"

#include <algorithm>
#include <utility>

namespace tessaly {

namespace {

// Clips the parameter range [from, to] of start + t * delta to abs(coordinate) <= exactlimit.
void cliprange(double start, double delta, double& from, double& to) {
    if (delta == 0) {
        if (std::abs(start) > exactlimit) to = -1;
        return;
    }
    const auto [enters, leaves] = std::minmax({(-exactlimit - start) / delta, (exactlimit - start) / delta});
    from = std::max(from, enters);
    to = std::min(to, leaves);
}

int pixelat(double start, double delta, double t) {
    return static_cast<int>(std::floor(std::clamp<double>(start + t * delta, -exactlimit, exactlimit) + 0.5));
}

// Sets l to the part of the line within exactlimit; returns false if nothing can be drawn.
bool cliptopixels(double x1, double y1, double x2, double y2, pixelline& l) {
    if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return false;
    if (std::max(std::abs(x2), std::abs(y2)) < std::max(std::abs(x1), std::abs(y1))) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const double dx = x2 - x1, dy = y2 - y1;
    double from = 0, to = 1;
    cliprange(x1, dx, from, to);
    cliprange(y1, dy, from, to);
    l = {pixelat(x1, dx, from), pixelat(y1, dy, from), pixelat(x1, dx, to), pixelat(y1, dy, to)};
    return from <= to;
}

std::int64_t floordivided(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t quotient = dividend / divisor;
    return quotient - (dividend % divisor < 0 ? 1 : 0);  // divisor > 0
}

}  // namespace

bool topixels(float x1, float y1, float x2, float y2, pixelline& l) {
    if (!(std::abs(x1) <= exactlimit && std::abs(y1) <= exactlimit && std::abs(x2) <= exactlimit &&
          std::abs(y2) <= exactlimit))
        return cliptopixels(x1, y1, x2, y2, l);
    l = {nearestpixel(x1), nearestpixel(y1), nearestpixel(x2), nearestpixel(y2)};
    return true;
}

int drawpixels(const pixelline& l, bitmap& image, std::uint32_t pixel) {
    int a1 = l.x1, b1 = l.y1, a2 = l.x2, b2 = l.y2;  // a along the longer axis, b along the other
    int alength = image.width, blength = image.height;
    std::ptrdiff_t astride = 1, bstride = image.width;
    if (std::abs(b2 - b1) > std::abs(a2 - a1)) {
        std::swap(a1, b1);
        std::swap(a2, b2);
        std::swap(alength, blength);
        std::swap(astride, bstride);
    }
    if (a1 > a2) {
        std::swap(a1, a2);
        std::swap(b1, b2);
    }
    if (a2 < 0 || a1 >= alength || (b1 < 0 && b2 < 0) || (b1 >= blength && b2 >= blength)) return 0;

    // u pixels after a1, b = b1 + direction * moves with the largest moves for which
    // threshold * moves <= increment * u + half. A half rounds up: one unit earlier if direction is +1.
    const int direction = b2 >= b1 ? 1 : -1;
    const std::int64_t run = a2 - a1, climb = std::abs(b2 - b1), increment = 2 * climb, threshold = 2 * run;
    const std::int64_t half = direction > 0 ? run : run - 1;
    std::int64_t from = a1 < 0 ? -static_cast<std::int64_t>(a1) : 0;
    std::int64_t to = (a2 >= alength ? alength - 1 : a2) - static_cast<std::int64_t>(a1);
    // The least u with that many moves, for a line that enters or leaves the image along b.
    const auto reached = [&](std::int64_t moves) { return -floordivided(half - moves * threshold, increment); };
    const std::int64_t enters = direction > 0 ? -static_cast<std::int64_t>(b1) : b1 - (blength - 1);
    const std::int64_t leaves = direction > 0 ? blength - static_cast<std::int64_t>(b1) : b1 + std::int64_t(1);
    if (enters > 0) from = std::max(from, reached(enters));
    if (climb >= leaves) to = std::min(to, reached(leaves) - 1);
    if (from > to) return 0;

    std::int64_t error = half, moves = 0;
    if (from > 0) {
        moves = (increment * from + half) / threshold;
        error = increment * from + half - moves * threshold;
    }
    bstride *= direction;
    std::uint32_t* lit = image.pixels.data() + (a1 + from) * astride + b1 * std::abs(bstride) + moves * bstride;
    for (std::int64_t u = from; u <= to; ++u) {
        *lit = pixel;
        lit += astride;
        error += increment;
        if (error >= threshold) {
            error -= threshold;
            lit += bstride;
        }
    }
    return static_cast<int>(to - from + 1);
}

}  // namespace tessaly

// drawbetween draws only the lines whose pixels differ from those of the line before.

#include "render/raster.h"

#include "core/table.h"
#include "render/lineclip.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <iterator>

namespace tessaly {

namespace {

constexpr std::uint32_t opaque = 0xff000000, white = 0xffffffff;

std::uint32_t pixelof(colour c) {
    return opaque | static_cast<std::uint32_t>(c.red) << 16 | static_cast<std::uint32_t>(c.green) << 8 | c.blue;
}

constexpr int maxdivisions = 2047;                                 // a denser fill is drawn line by line
using stepset = std::array<std::uint64_t, maxdivisions / 64 + 1>;  // a set of t: one bit for each

// Returns the table of t / n for t = 0..n. The next call overwrites it.
const double* fractionsof(int n) {
    static std::vector<double> fractions;
    if (fractions.size() != static_cast<std::size_t>(n) + 1) {
        fractions.clear();
        for (int t = 0; t <= n; ++t) fractions.push_back(static_cast<double>(t) / n);
    }
    return fractions.data();
}

// One coordinate of the points at t / n along an edge of a face.
struct edgecoordinate {
    static constexpr int maxpixels = 1 << 26;  // maximum of abs(start) and abs(start + delta)
    double start, delta;
    const double* fractions;

    // Returns nearestpixel of the coordinate in single precision. The bias makes the sum positive, so that the cast
    // rounds down. Within maxpixels the sum is exact whenever the half matters.
    int pixelat(int t) const {
        constexpr int bias = 2 * maxpixels;
        const auto coordinate = static_cast<float>(start + fractions[t] * delta);
        return static_cast<int>(static_cast<double>(coordinate) + (bias + 0.5)) - bias;
    }
};

// Adds each t at which the pixel of the coordinate changes. Every rounding preserves the order, so the pixel moves in
// one direction only. The slope gives a guess of the next change. A late guess is moved back. An early guess adds a t
// without a change, which does no harm, and the loop continues there.
void addchanges(const edgecoordinate& c, int n, stepset& steps) {
    const int last = c.pixelat(n);
    int pixel = c.pixelat(0);
    if (pixel == last) return;
    // The pixels differ, so delta is not 0; but if delta is tiny, the first guess may be of any size.
    const double slope = n / c.delta, stepsperpixel = std::abs(slope);
    double guess = (pixel - c.start) * slope + stepsperpixel / 2 + 1;
    for (int t = 0; pixel != last; guess += stepsperpixel) {
        t = std::max(t + 1, static_cast<int>(std::clamp<double>(guess, 1, n)));
        while (t > 1 && c.pixelat(t - 1) != pixel) --t;
        pixel = c.pixelat(t);
        steps[static_cast<std::size_t>(t) / 64] |= std::uint64_t{1} << (t % 64);
    }
}

}  // namespace

raster::raster(int itswidth, int itsheight)
    : bitmap{itswidth, itsheight,
             std::vector(static_cast<std::size_t>(itswidth) * static_cast<std::size_t>(itsheight), white)} {}

void raster::line(float x1, float y1, float x2, float y2, colour c) {
    pixelline l;
    if (topixels(x1, y1, x2, y2, l)) drawpixels(l, *this, pixelof(c));
}

void raster::drawbetween(const facecorners& f, int n, colour c) {
    const double corners[] = {f.x1, f.y1, f.x2, f.y2, f.x3, f.y3, f.x4, f.y4};
    const auto isnear = [](double coordinate) {
        return std::abs(coordinate) <= edgecoordinate::maxpixels;
    };  // false for NaN
    if (noshortcuts || n > maxdivisions || !std::all_of(std::begin(corners), std::end(corners), isnear))
        return surface::drawbetween(f, n, c);
    const double* const fractions = fractionsof(n);
    const edgecoordinate x1{f.x1, f.x2 - f.x1, fractions}, y1{f.y1, f.y2 - f.y1, fractions},
        x2{f.x3, f.x4 - f.x3, fractions}, y2{f.y3, f.y4 - f.y3, fractions};
    stepset steps{1};  // contains t = 0: the first line is always drawn
    for (const edgecoordinate* coordinate : {&x1, &y1, &x2, &y2}) addchanges(*coordinate, n, steps);
    const std::uint32_t pixel = pixelof(c);
    for (int first = 0; first <= n; first += 64)
        for (std::uint64_t undrawn = steps[static_cast<std::size_t>(first) / 64]; undrawn != 0;
             undrawn &= undrawn - 1) {
            const int t = first + std::countr_zero(undrawn);
            drawpixels({x1.pixelat(t), y1.pixelat(t), x2.pixelat(t), y2.pixelat(t)}, *this, pixel);
        }
}

void raster::save(const std::string& path) { writebitmap(*this, path); }

void raster::setpicture(const std::string& path) {
    const bitmap picture = readpicture(path);
    for (int y = 0; y < std::min(picture.height, height); ++y)
        std::copy_n(picture.pixels.begin() + static_cast<std::ptrdiff_t>(y) * picture.width,
                    std::min(picture.width, width), pixels.begin() + static_cast<std::ptrdiff_t>(y) * width);
}

void raster::clear() { std::fill(pixels.begin(), pixels.end(), white); }

}  // namespace tessaly

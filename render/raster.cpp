// The image in memory. drawbetween draws only the lines whose pixels differ from those of the line before.

#include "render/raster.h"

#include "core/table.h"
#include "render/lineclip.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <iterator>

namespace tessaly {

std::function<bitmap(const std::string&)> readpicture = readbitmap;

namespace {

constexpr std::uint32_t opaque = 0xff000000, white = 0xffffffff;

std::uint32_t pixelof(colour c) {
    return opaque | static_cast<std::uint32_t>(c.red) << 16 | static_cast<std::uint32_t>(c.green) << 8 | c.blue;
}

constexpr int maxdivisions = 2047;                                 // more are drawn line by line
using stepset = std::array<std::uint64_t, maxdivisions / 64 + 1>;  // one bit for each t

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

    // Equal to nearestpixel of the coordinate in single precision. The bias makes the sum positive, so that the cast
    // rounds down; within maxpixels the sum is exact wherever the half matters.
    int pixelat(int t) const {
        constexpr int bias = 2 * maxpixels;
        const auto coordinate = static_cast<float>(start + fractions[t] * delta);
        return static_cast<int>(static_cast<double>(coordinate) + (bias + 0.5)) - bias;
    }
};

// Adds each t at which the pixel of the coordinate changes. Every rounding keeps the order, so the pixel moves one way
// only. The slope gives a guess of the next change. If it is late, it is moved back; if it is early, the t added is one
// too many, which does no harm, and the loop goes on from there.
void addchanges(const edgecoordinate& c, int n, stepset& steps) {
    const int last = c.pixelat(n);
    int pixel = c.pixelat(0);
    if (pixel == last) return;
    // The pixels differ, so delta is not 0, but the first guess may be any size if delta is tiny.
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

raster::raster(int width, int height)
    : image{width, height, std::vector(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), white)} {}

void raster::line(float x1, float y1, float x2, float y2, colour c) {
    pixelline l;
    if (topixels(x1, y1, x2, y2, l)) drawpixels(l, image, pixelof(c));
}

void raster::drawbetween(const facecorners& f, int n, colour c) {
    const double corners[] = {f.x1, f.y1, f.x2, f.y2, f.x3, f.y3, f.x4, f.y4};
    const auto isnear = [](double at) { return std::abs(at) <= edgecoordinate::maxpixels; };  // false for NaN
    if (noshortcuts || n > maxdivisions || !std::all_of(std::begin(corners), std::end(corners), isnear))
        return surface::drawbetween(f, n, c);
    const double* const fractions = fractionsof(n);
    const edgecoordinate x1{f.x1, f.x2 - f.x1, fractions}, y1{f.y1, f.y2 - f.y1, fractions},
        x2{f.x3, f.x4 - f.x3, fractions}, y2{f.y3, f.y4 - f.y3, fractions};
    stepset steps{1};  // the line at t = 0 is always drawn
    for (const edgecoordinate* each : {&x1, &y1, &x2, &y2}) addchanges(*each, n, steps);
    const std::uint32_t pixel = pixelof(c);
    for (int first = 0; first <= n; first += 64)
        for (std::uint64_t left = steps[static_cast<std::size_t>(first) / 64]; left != 0; left &= left - 1) {
            const int t = first + std::countr_zero(left);
            drawpixels({x1.pixelat(t), y1.pixelat(t), x2.pixelat(t), y2.pixelat(t)}, image, pixel);
        }
}

void raster::save(const std::string& path) { writebitmap(image, path); }

void raster::setpicture(const std::string& path) {
    const bitmap picture = readpicture(path);
    for (int y = 0; y < std::min(picture.height, image.height); ++y)
        std::copy_n(picture.pixels.begin() + static_cast<std::ptrdiff_t>(y) * picture.width,
                    std::min(picture.width, image.width),
                    image.pixels.begin() + static_cast<std::ptrdiff_t>(y) * image.width);
}

colour raster::at(int x, int y) const {
    const std::uint32_t pixel = image.pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                                                static_cast<std::size_t>(x));
    return {static_cast<std::uint8_t>(pixel >> 16), static_cast<std::uint8_t>(pixel >> 8),
            static_cast<std::uint8_t>(pixel)};
}

void raster::clear() { std::fill(image.pixels.begin(), image.pixels.end(), white); }

}  // namespace tessaly

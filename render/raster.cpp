// The image in memory. A line's pixels are worked out in whole numbers only, see render/linepart.

#include "render/raster.h"

#include "render/bitmap.h"
#include "render/facefill.h"
#include "render/linepart.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

namespace tessaly {

std::function<void(raster&, const std::string&)> readpicture = readbitmap;

namespace {

constexpr std::uint32_t opaque = 0xff000000, white = 0xffffffff;

std::uint32_t pixelof(colour c) {
    return opaque | static_cast<std::uint32_t>(c.red) << 16 | static_cast<std::uint32_t>(c.green) << 8 | c.blue;
}

// Four pixels at a time; the last ones may be stored twice.
void fillpixels(std::uint32_t* at, int count, std::uint32_t pixel) {
    const std::uint32_t four[4] = {pixel, pixel, pixel, pixel};
    if (count < 4) {
        for (int i = 0; i < count; ++i) at[i] = pixel;
        return;
    }
    for (int i = 0; i <= count - 4; i += 4) std::memcpy(at + i, four, sizeof four);
    std::memcpy(at + count - 4, four, sizeof four);
}

void paintpart(const linepart& part, std::uint32_t* image, int wide, std::uint32_t pixel) {
    const std::ptrdiff_t along = part.steep ? wide : 1, across = (part.steep ? 1 : wide) * part.direction;
    std::uint32_t* at = image + (part.steep ? static_cast<std::ptrdiff_t>(part.first) * wide + part.minor
                                            : static_cast<std::ptrdiff_t>(part.minor) * wide + part.first);
    std::int64_t rest = part.rest;
    for (int left = part.last - part.first; left >= 0; --left) {
        *at = pixel;
        at += along;
        rest += part.step;
        if (rest >= part.whole) {
            rest -= part.whole;
            at += across;
        }
    }
}

}  // namespace

raster::raster(int width, int height)
    : wide(width), high(height), image(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), white) {}

void raster::line(float x1, float y1, float x2, float y2, colour c) {
    if (withinnearline(x1, y1, x2, y2)) {
        linepart part;
        const pixelline whole{nearestpixel(x1), nearestpixel(y1), nearestpixel(x2), nearestpixel(y2)};
        if (visiblepart(whole, wide, high, part)) paintpart(part, image.data(), wide, pixelof(c));
    } else if (std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)) {
        walkhugeline(x1, y1, x2, y2, wide, high, [&](int x, int y) {
            image[static_cast<std::size_t>(y) * static_cast<std::size_t>(wide) + static_cast<std::size_t>(x)] =
                pixelof(c);
        });
    }
}

void raster::fillrow(int y, int x1, int x2, std::uint32_t pixel) {
    const int from = std::max(x1, 0), to = std::min(x2, wide - 1);
    if (y < 0 || y >= high || from > to) return;
    fillpixels(image.data() + static_cast<std::ptrdiff_t>(y) * wide + from, to - from + 1, pixel);
}

void raster::wash(int x1, int x2, int y1, int y2, colour c) {
    for (int y = std::max(y1, 0); y <= std::min(y2, high - 1); ++y)
        fillrow(y, std::min(x1, x2), std::max(x1, x2), pixelof(c));
}

void raster::web(const facecorners& f, int n, colour c) {
    const auto [left, right] = std::minmax({f.x1, f.x2, f.x3, f.x4});
    const auto [top, bottom] = std::minmax({f.y1, f.y2, f.y3, f.y4});
    const double corners[] = {f.x1, f.y1, f.x2, f.y2, f.x3, f.y3, f.x4, f.y4};
    // A corner that is no number is not near either.
    const auto isnear = [](double at) { return std::abs(at) <= mostpixels; };
    const bool near = std::all_of(std::begin(corners), std::end(corners), isnear);
    if (!near || n < 1 || n > mostdivisions) return surface::web(f, n, c);
    // The last of the ends may stand a rounding beyond its corner.
    const int x1 = nearestpixel(static_cast<float>(left)) - 1, x2 = nearestpixel(static_cast<float>(right)) + 1;
    const int y1 = nearestpixel(static_cast<float>(top)) - 1, y2 = nearestpixel(static_cast<float>(bottom)) + 1;
    if (x2 < 0 || x1 >= wide || y2 < 0 || y1 >= high) return;

    const rails sets[] = {{f.x1, f.y1, f.x2, f.y2, f.x3, f.y3, f.x4, f.y4},
                          {f.x1, f.y1, f.x3, f.y3, f.x2, f.y2, f.x4, f.y4}};
    const std::uint32_t pixel = pixelof(c);
    if (x2 - x1 >= pixelmask::mostsize || y2 - y1 >= pixelmask::mostsize) {
        linepart part;
        for (const rails& set : sets)
            for (const pixelline& l : distinctlines(set, n))
                if (visiblepart(l, wide, high, part)) paintpart(part, image.data(), wide, pixel);
        return;
    }
    static pixelmask mask;
    mask.cover(x1, y1, x2, y2);
    for (const rails& set : sets)
        for (const pixelline& l : distinctlines(set, n)) mask.addline(l);
    mask.overruns([&](int y, int from, int to) { fillrow(y, from, to, pixel); });
}

void raster::save(const std::string& path) { writebitmap(*this, path); }

void raster::setpicture(const std::string& path) { readpicture(*this, path); }

colour raster::at(int x, int y) const {
    const std::uint32_t pixel =
        image.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(wide) + static_cast<std::size_t>(x));
    return {static_cast<std::uint8_t>(pixel >> 16), static_cast<std::uint8_t>(pixel >> 8),
            static_cast<std::uint8_t>(pixel)};
}

void raster::clear() { std::fill(image.begin(), image.end(), white); }

}  // namespace tessaly

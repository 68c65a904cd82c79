// The image in memory. A line's pixels are worked out in whole numbers only, see render/linepart.

#include "render/raster.h"

#include "core/channels.h"
#include "core/failure.h"
#include "render/linepart.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

std::function<void(const raster&, const std::string&)> writepicture;
std::function<void(raster&, const std::string&)> readpicture;

namespace {

constexpr std::uint32_t opaque = 0xff000000, white = 0xffffffff;

std::uint32_t pixelof(colour c) {
    return opaque | static_cast<std::uint32_t>(c.red) << 16 | static_cast<std::uint32_t>(c.green) << 8 | c.blue;
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

void raster::wash(int x1, int x2, int y1, int y2, colour c) {
    const int left = std::max(std::min(x1, x2), 0), right = std::min(std::max(x1, x2), wide - 1);
    if (left > right) return;
    for (int y = std::max(y1, 0); y <= std::min(y2, high - 1); ++y) {
        const auto row = image.begin() + static_cast<std::ptrdiff_t>(y) * wide;
        std::fill(row + left, row + right + 1, pixelof(c));
    }
}

void raster::save(const std::string& path) {
    if (!writepicture) throw failure(failurekind::fileaccess, path + ": this program writes no picture files");
    writepicture(*this, systempath(path));
}

void raster::setpicture(const std::string& path) {
    if (!readpicture) throw failure(failurekind::fileaccess, path + ": this program reads no picture files");
    readpicture(*this, systempath(path));
}

colour raster::at(int x, int y) const {
    const std::uint32_t pixel =
        image.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(wide) + static_cast<std::size_t>(x));
    return {static_cast<std::uint8_t>(pixel >> 16), static_cast<std::uint8_t>(pixel >> 8),
            static_cast<std::uint8_t>(pixel)};
}

void raster::clear() { std::fill(image.begin(), image.end(), white); }

}  // namespace tessaly

// The image in memory. A line's pixels are worked out in whole numbers only, see render/lineclip.

#include "render/raster.h"

#include "core/table.h"
#include "render/lineclip.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <span>

namespace tessaly {

std::function<bitmap(const std::string&)> readpicture = readbitmap;

namespace {

constexpr std::uint32_t opaque = 0xff000000, white = 0xffffffff;

std::uint32_t pixelof(colour c) {
    return opaque | static_cast<std::uint32_t>(c.red) << 16 | static_cast<std::uint32_t>(c.green) << 8 | c.blue;
}

// The lines of a sweep are rounded a block at a time, coordinate by coordinate, so that the compiler works on several
// at once; in front of a block stands the last line of the one before.
constexpr std::size_t block = 8;
constexpr int maxdivisions = 4096;     // lines of a sweep
constexpr double maxpixels = 1 << 26;  // of its corners
using pixelblock = std::array<int, block + 1>;

// t / n for t = 0..n, and on to the end of the last block.
const double* sharesof(int n) {
    static std::vector<double> shares;
    static int sharesn = 0;
    if (n != sharesn) {
        shares.clear();
        for (int t = 0; t < n + static_cast<int>(block); ++t) shares.push_back(static_cast<double>(t) / n);
        sharesn = n;
    }
    return shares.data();
}

// Ends at their shares of an edge, as nearestpixel would give them. The bias makes every sum positive, so that cutting
// it rounds down; up to maxpixels the sum is exact wherever the half matters.
void roundends(double from, double to, const double* shares, pixelblock& pixels) {
    constexpr double bias = 2 * maxpixels;
    const double across = to - from;
    pixels[0] = pixels[block];
    for (std::size_t i = 0; i < block; ++i) {
        const auto narrowed = static_cast<float>(from + shares[i] * across);
        pixels[i + 1] = static_cast<int>(static_cast<double>(narrowed) + (bias + 0.5)) - static_cast<int>(bias);
    }
}

// The lines of a sweep in whole pixels; one that repeats the one before is left out. The next call overwrites them.
std::span<const pixelline> distinctlines(const facecorners& f, int n) {
    static std::array<pixelline, maxdivisions + 2 * block> lines;
    const double* const shares = sharesof(n);
    pixelblock x1{}, y1{}, x2{}, y2{};
    std::size_t found = 0;
    const auto count = static_cast<std::size_t>(n) + 1;
    for (std::size_t t = 0; t < count; t += block) {
        roundends(f.x1, f.x2, shares + t, x1);
        roundends(f.y1, f.y2, shares + t, y1);
        roundends(f.x3, f.x4, shares + t, x2);
        roundends(f.y3, f.y4, shares + t, y2);
        std::array<int, block> differs;
        for (std::size_t i = 0; i < block; ++i)
            differs[i] = (x1[i] ^ x1[i + 1]) | (y1[i] ^ y1[i + 1]) | (x2[i] ^ x2[i + 1]) | (y2[i] ^ y2[i + 1]);
        if (t == 0) differs[0] = 1;
        // Each line is stored, and the place is taken where it differs: no branch to guess.
        for (std::size_t i = 0; i < std::min(block, count - t); ++i) {
            lines[found] = {x1[i + 1], y1[i + 1], x2[i + 1], y2[i + 1]};
            found += differs[i] != 0;
        }
    }
    return {lines.data(), found};
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
    : image{width, height, std::vector(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), white)} {}

void raster::line(float x1, float y1, float x2, float y2, colour c) {
    pixelline l;
    linepart part;
    if (wholepixels(x1, y1, x2, y2, l) && visiblepart(l, image.width, image.height, part))
        paintpart(part, image.pixels.data(), image.width, pixelof(c));
}

void raster::drawbetween(const facecorners& f, int n, colour c) {
    const double corners[] = {f.x1, f.y1, f.x2, f.y2, f.x3, f.y3, f.x4, f.y4};
    // A corner that is no number is not near either.
    const auto isnear = [](double at) { return std::abs(at) <= maxpixels; };
    if (noshortcuts || n > maxdivisions || !std::all_of(std::begin(corners), std::end(corners), isnear))
        return surface::drawbetween(f, n, c);
    const std::uint32_t pixel = pixelof(c);
    linepart part;
    for (const pixelline& l : distinctlines(f, n))
        if (visiblepart(l, image.width, image.height, part)) paintpart(part, image.pixels.data(), image.width, pixel);
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

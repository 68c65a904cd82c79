// The lines of the image compared with a plain reference, which computes the nearest pixel of each column or row.
#include "render/raster.h"
#include "tests/random.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace tessaly;

namespace {

constexpr int width = 31, height = 19;

using pixels = std::vector<bool>;  // whether each is coloured

// Returns the pixels of a line, computed from the end that is nearer to pixel 0, 0. A mantissa of 64 bits makes this
// exact for ends up to 2^29.
pixels reference(float x1, float y1, float x2, float y2) {
    using number = long double;
    const auto nearestwhole = [](float coordinate) { return std::floor(number(coordinate) + 0.5L); };
    std::array<number, 2> from{nearestwhole(x1), nearestwhole(y1)}, to{nearestwhole(x2), nearestwhole(y2)};
    if (std::abs(to[0]) + std::abs(to[1]) < std::abs(from[0]) + std::abs(from[1])) std::swap(from, to);
    const bool steep = std::abs(to[1] - from[1]) > std::abs(to[0] - from[0]);
    const std::size_t along = steep ? 1 : 0, across = 1 - along;
    const number run = to[along] - from[along], rise = to[across] - from[across];
    pixels result(width * height);
    for (int at = 0; at < (steep ? height : width); ++at) {
        if (at < std::min(from[along], to[along]) || at > std::max(from[along], to[along])) continue;
        const number moves = run == 0 ? 0 : std::floor((2 * rise * (at - from[along]) + run) / (2 * run));
        const auto nearest = static_cast<std::int64_t>(std::clamp<number>(from[across] + moves, -1, width));
        if (nearest >= 0 && nearest < (steep ? width : height))
            result[static_cast<std::size_t>(steep ? at * width + nearest : nearest * width + at)] = true;
    }
    return result;
}

pixels drawn(float x1, float y1, float x2, float y2) {
    raster r(width, height);
    r.line(x1, y1, x2, y2, {255, 0, 0});
    pixels result;
    for (const std::uint32_t pixel : r.pixels) result.push_back(pixel != 0xffffffff);
    return result;
}

// Returns a coordinate of any size that is drawn exactly. Often it is a multiple of half a pixel.
float anysize(randomnumbers& random) {
    if (random.oncein(4)) return static_cast<float>(random.whole(-40, 80)) / 2;
    return static_cast<float>(std::ldexp(random.within(1), random.whole(0, random.oncein(2) ? 12 : 29)));
}

}  // namespace

// Catches a pixel off by one, a half rounded the wrong way, a line that depends on its direction, and an overflow.
TEST(raster, linesColourTheNearestPixels) {
    randomnumbers random;
    for (int i = 0; i < 30000; ++i) {
        const float x1 = anysize(random), y1 = anysize(random), x2 = anysize(random), y2 = anysize(random);
        const pixels expected = reference(x1, y1, x2, y2);
        ASSERT_EQ(drawn(x1, y1, x2, y2), expected) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
        ASSERT_EQ(drawn(x2, y2, x1, y1), expected) << "reversed " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
    }
}

// A line with one end far away may differ in a pixel now and then. A line with two such ends may draw any pixels, but
// does not crash. A line with an end that is not finite draws nothing.
TEST(raster, linesFromFarAway) {
    randomnumbers random;
    int differing = 0;
    for (int i = 0; i < 10000; ++i) {
        const double angle = random.within(3.2), far = std::ldexp(1.0, random.whole(30, 127)),
                     near = -random.whole(0, 5000);
        const auto x = [&](double away) { return static_cast<float>(15 + away * std::cos(angle)); };
        const auto y = [&](double away) { return static_cast<float>(9 + away * std::sin(angle)); };
        const pixels expected = reference(x(far), y(far), x(near), y(near));
        differing += drawn(x(far), y(far), x(near), y(near)) != expected;
        for (const float other : {anysize(random) * 1e20F, -x(far), std::nextafter(y(far), 0.0F)})
            drawn(x(far), y(far), other, y(far));
    }
    EXPECT_LT(differing, 5);
    for (const float notfinite : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        EXPECT_EQ(drawn(notfinite, 1, 5, 5), pixels(width * height));
        EXPECT_EQ(drawn(1, 1, 5, -notfinite), pixels(width * height));
    }
}

// Catches a line that is wrongly skipped or ends at the wrong pixel, and a cast out of range. The edges have any
// length, including 0 and almost 0, are near or far, and often start on the border of two pixels.
TEST(raster, facesColourThePixelsOfTheirLines) {
    randomnumbers random;
    for (int i = 0; i < 40000; ++i) {
        double coordinates[8];
        for (double& coordinate : coordinates)
            coordinate = i == 0              ? 0  // all in the corner of the image
                         : random.oncein(20) ? std::ldexp(random.within(1), 26)
                         : random.oncein(2)  ? random.whole(-9, 60) / 2.0
                                             : random.within(40);
        for (const std::size_t end : {2U, 3U, 6U, 7U}) {
            if (i == 0 || random.oncein(2)) continue;
            coordinates[end] =
                coordinates[end - 2] + std::ldexp(random.within(1), -random.whole(0, random.oncein(9) ? 1070 : 25));
            if (random.oncein(2)) std::swap(coordinates[end], coordinates[end - 2]);
        }
        const facecorners f{coordinates[0], coordinates[1], coordinates[2], coordinates[3],
                            coordinates[4], coordinates[5], coordinates[6], coordinates[7]};
        const int divisions = random.whole(1, random.oncein(2) ? 300 : 20);
        raster fast(width, height), plain(width, height);
        fast.drawbetween(f, divisions, {255, 0, 0});
        plain.surface::drawbetween(f, divisions, {255, 0, 0});
        ASSERT_EQ(fast.pixels, plain.pixels) << "face " << i << ", " << divisions << " divisions";
    }
}

// The image's lines compared with a plain reference, which only looks up the nearest pixel of each column (or row).
#include "render/raster.h"
#include "tests/random.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace tessaly;

namespace {

constexpr int wide = 31, high = 19;

using lit = std::vector<bool>;

// Counts from the nearer end. With a mantissa of 64 bits this is exact for ends up to 2^29.
lit reference(float x1, float y1, float x2, float y2) {
    using number = long double;
    const auto whole = [](float coordinate) { return std::floor(number(coordinate) + 0.5L); };
    std::array<number, 2> from{whole(x1), whole(y1)}, to{whole(x2), whole(y2)};
    if (std::abs(to[0]) + std::abs(to[1]) < std::abs(from[0]) + std::abs(from[1])) std::swap(from, to);
    const bool steep = std::abs(to[1] - from[1]) > std::abs(to[0] - from[0]);
    const std::size_t a = steep ? 1 : 0, b = 1 - a;
    const number run = to[a] - from[a], climb = to[b] - from[b];
    lit result(wide * high);
    for (int at = 0; at < (steep ? high : wide); ++at) {
        if (at < std::min(from[a], to[a]) || at > std::max(from[a], to[a])) continue;
        const number moves = run == 0 ? 0 : std::floor((2 * climb * (at - from[a]) + run) / (2 * run));
        const auto nearest = static_cast<std::int64_t>(std::clamp<number>(from[b] + moves, -1, wide));
        if (nearest >= 0 && nearest < (steep ? wide : high))
            result[static_cast<std::size_t>(steep ? at * wide + nearest : nearest * wide + at)] = true;
    }
    return result;
}

lit drawn(float x1, float y1, float x2, float y2) {
    raster r(wide, high);
    r.line(x1, y1, x2, y2, {255, 0, 0});
    lit result;
    for (const std::uint32_t pixel : r.picture().pixels) result.push_back(pixel != 0xffffffff);
    return result;
}

// Returns a coordinate of any size that is drawn exactly, often with half a pixel.
float anysize(randomnumbers& d) {
    if (d.once(4)) return static_cast<float>(d.whole(-40, 80)) / 2;
    return static_cast<float>(std::ldexp(d.within(1), d.whole(0, d.once(2) ? 12 : 29)));
}

}  // namespace

// Finds a pixel off by one, a half rounded the other way, a direction that matters, an overflow in a product.
TEST(raster, linesLightTheNearestPixels) {
    randomnumbers d;
    for (int i = 0; i < 30000; ++i) {
        const float x1 = anysize(d), y1 = anysize(d), x2 = anysize(d), y2 = anysize(d);
        const lit expected = reference(x1, y1, x2, y2);
        ASSERT_EQ(drawn(x1, y1, x2, y2), expected) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
        ASSERT_EQ(drawn(x2, y2, x1, y1), expected) << "reversed " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
    }
}

// Lines with an end at any distance of single precision may differ in a pixel now and then. Two ends that far away are
// safe, and an end that is not finite draws nothing.
TEST(raster, linesFromFarAway) {
    randomnumbers d;
    int differing = 0;
    for (int i = 0; i < 10000; ++i) {
        const double angle = d.within(3.2), far = std::ldexp(1.0, d.whole(30, 127)), near = -d.whole(0, 5000);
        const auto x = [&](double away) { return static_cast<float>(15 + away * std::cos(angle)); };
        const auto y = [&](double away) { return static_cast<float>(9 + away * std::sin(angle)); };
        const lit expected = reference(x(far), y(far), x(near), y(near));
        differing += drawn(x(far), y(far), x(near), y(near)) != expected;
        for (const float other : {anysize(d) * 1e20F, -x(far), std::nextafter(y(far), 0.0F)})
            drawn(x(far), y(far), other, y(far));
    }
    EXPECT_LT(differing, 5);
    for (const float none : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        EXPECT_EQ(drawn(none, 1, 5, 5), lit(wide * high));
        EXPECT_EQ(drawn(1, 1, 5, -none), lit(wide * high));
    }
}

// Finds a step that is skipped or taken at the wrong t, a cast out of range. Edges of any length, 0 and almost 0 too,
// near and far, often starting on the border of two pixels.
TEST(raster, facesLightThePixelsOfTheirLines) {
    randomnumbers d;
    for (int i = 0; i < 40000; ++i) {
        double corners[8];
        for (double& corner : corners)
            corner = d.once(20) ? std::ldexp(d.within(1), 26) : d.once(2) ? d.whole(-9, 60) / 2.0 : d.within(40);
        for (const std::size_t end : {2U, 3U, 6U, 7U}) {
            if (d.once(2)) continue;
            corners[end] = corners[end - 2] + std::ldexp(d.within(1), -d.whole(0, d.once(9) ? 1070 : 25));
            if (d.once(2)) std::swap(corners[end], corners[end - 2]);
        }
        const facecorners f{corners[0], corners[1], corners[2], corners[3],
                            corners[4], corners[5], corners[6], corners[7]};
        const int n = d.whole(1, d.once(2) ? 300 : 20);
        raster quick(wide, high), plain(wide, high);
        quick.drawbetween(f, n, {255, 0, 0});
        plain.surface::drawbetween(f, n, {255, 0, 0});
        ASSERT_EQ(quick.picture().pixels, plain.picture().pixels) << "face " << i << ", " << n << " divisions";
    }
}

// The first line of a face has none before it, and is drawn even if all coordinates are 0.
TEST(raster, aFaceMayBeThePixelInTheCorner) {
    raster r(9, 9);
    r.fillface({}, 7, {255, 0, 0});
    EXPECT_EQ(r.at(0, 0), (colour{255, 0, 0}));
}

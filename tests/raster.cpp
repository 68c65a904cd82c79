// The image's lines against a plain reference, which asks of each column (or row) for the nearest pixel and nothing
// else, and a face's lines against the same lines drawn one by one.
#include "render/raster.h"
#include "core/table.h"
#include "tests/dice.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace tessaly;

namespace {

constexpr colour red{255, 0, 0};
constexpr int wide = 31, high = 19;

using lit = std::vector<bool>;

// Counted from the nearer end; with figures of 64 bits exact for ends up to 2^29.
lit reference(float x1, float y1, float x2, float y2) {
    using figure = long double;
    const auto whole = [](float coordinate) { return std::floor(figure(coordinate) + 0.5L); };
    figure a1 = whole(x1), b1 = whole(y1), a2 = whole(x2), b2 = whole(y2);
    const bool steep = std::abs(b2 - b1) > std::abs(a2 - a1);
    if (steep) {
        std::swap(a1, b1);
        std::swap(a2, b2);
    }
    if (std::abs(a2) + std::abs(b2) < std::abs(a1) + std::abs(b1)) {
        std::swap(a1, a2);
        std::swap(b1, b2);
    }
    lit result(wide * high);
    const figure run = a2 - a1, climb = b2 - b1;
    for (int a = 0; a < (steep ? high : wide); ++a) {
        if (a < std::min(a1, a2) || a > std::max(a1, a2)) continue;
        const figure b = b1 + (run == 0 ? 0 : std::floor((2 * climb * (a - a1) + run) / (2 * run)));
        if (b < 0 || b >= (steep ? wide : high)) continue;
        const auto at = static_cast<int>(b);
        result[static_cast<std::size_t>(steep ? a * wide + at : at * wide + a)] = true;
    }
    return result;
}

lit pixelsof(const raster& r) {
    lit result;
    for (int i = 0; i < r.width() * r.height(); ++i) result.push_back(r.pixels()[i] != 0xffffffff);
    return result;
}

lit drawn(float x1, float y1, float x2, float y2) {
    raster r(wide, high);
    r.line(x1, y1, x2, y2, red);
    return pixelsof(r);
}

// Of every size that is worked out exactly, and half pixels often.
float anysize(dice& d) {
    if (d.once(4)) return static_cast<float>(d.whole(-40, 80)) / 2;
    return static_cast<float>(std::ldexp(d.within(1), d.whole(0, d.once(2) ? 12 : 29)));
}

}  // namespace

// A pixel off by one, a half rounded the other way, a direction that matters, an overflow in a product.
TEST(raster, linesLightTheNearestPixels) {
    dice d;
    int visible = 0;
    for (int i = 0; i < 30000; ++i) {
        const float x1 = anysize(d), y1 = anysize(d), x2 = anysize(d), y2 = anysize(d);
        const lit expected = reference(x1, y1, x2, y2);
        visible += expected != lit(expected.size());
        ASSERT_EQ(drawn(x1, y1, x2, y2), expected) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
        ASSERT_EQ(drawn(x2, y2, x1, y1), expected) << "reversed " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
    }
    EXPECT_GT(visible, 4000);
}

// Lines with an end at any distance that single precision knows: drawn from the near end on they miss a pixel now and
// then. With both ends out there nothing breaks, and figures that are none draw nothing.
TEST(raster, linesFromFarAway) {
    dice d;
    int visible = 0, differing = 0;
    for (int i = 0; i < 10000; ++i) {
        const double angle = d.within(3.2), far = std::ldexp(1.0, d.whole(30, 127)), near = -d.whole(0, 5000);
        const auto x = [&](double away) { return static_cast<float>(15 + away * std::cos(angle)); };
        const auto y = [&](double away) { return static_cast<float>(9 + away * std::sin(angle)); };
        const lit expected = reference(x(far), y(far), x(near), y(near));
        visible += expected != lit(expected.size());
        differing += drawn(x(far), y(far), x(near), y(near)) != expected;
        for (const float other : {anysize(d) * 1e20F, -x(far), std::nextafter(y(far), 0.0F)})
            drawn(x(far), y(far), other, y(far));
    }
    EXPECT_GT(visible, 9000);
    EXPECT_LT(differing, 5);
    for (const float none : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        EXPECT_EQ(drawn(none, 1, 5, 5), lit(wide * high));
        EXPECT_EQ(drawn(1, 1, 5, -none), lit(wide * high));
    }
}

// A line of a face that is lost, one that is taken for its double: corners near and far, on a border between pixels, at
// the mark of a point that was given up, in one place, at no figure at all.
TEST(raster, webLightsWhatItsLinesWould) {
    dice d;
    raster plain(200, 170), quick(200, 170);
    int filled = 0;
    for (int i = 0; i < 2000; ++i) {
        double reach = std::ldexp(1.0, d.whole(3, 19)), corners[8];
        for (double& at : corners) {
            at = 90 + d.within(reach);
            if (d.once(8)) at = std::floor(at) + d.whole(0, 1) / 2.0;
            if (d.once(40)) at = 9999;
            if (d.once(60)) at = std::numeric_limits<double>::quiet_NaN();
            if (d.once(60)) at = std::ldexp(d.within(1), 130);
        }
        if (d.once(9)) std::copy_n(corners, 2, corners + 2);
        const auto& [x1, y1, x2, y2, x3, y3, x4, y4] = corners;
        const int n = d.once(2) ? 200 : 1 << d.whole(0, 13);
        for (raster* r : {&plain, &quick}) {
            plainway = r == &plain;
            r->clear();
            r->web({x1, y1, x2, y2, x3, y3, x4, y4}, n, red);
        }
        const auto expected = pixelsof(plain);
        ASSERT_TRUE(pixelsof(quick) == expected)
            << "face " << i << ": " << testing::PrintToString(corners) << " by " << n;
        filled += std::count(expected.begin(), expected.end(), true) > 500;
    }
    EXPECT_GT(filled, 300);
}

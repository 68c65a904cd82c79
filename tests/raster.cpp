// The image's lines against a plain reference: at each column (or row) the nearest pixel by an exact sign, nothing
// else.
#include "render/raster.h"
#include "core/table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

using namespace tessaly;

namespace {

constexpr colour red{255, 0, 0};

// The sign of a sum of at most eight doubles, exactly: partial sums are kept as terms that do not overlap.
int exactsign(std::initializer_list<double> terms) {
    std::array<double, 9> parts{};  // ascending in size
    std::size_t count = 0;
    for (double sum : terms) {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const double part = parts[i], whole = sum + part, back = whole - sum;
            const double lost = (sum - (whole - back)) + (part - back);
            if (lost != 0) parts[kept++] = lost;
            sum = whole;
        }
        parts[kept++] = sum;
        count = kept;
    }
    while (count > 0 && parts[count - 1] == 0) --count;
    if (count == 0) return 0;
    return parts[count - 1] > 0 ? 1 : -1;
}

double rounded(float coordinate) { return std::floor(static_cast<double>(coordinate) + 0.5); }

// Whether the line (a1, b1)-(a2, b2), a1 < a2, stands at or above b - 1/2 at column a, doubled and multiplied out.
bool atleast(double a1, double b1, double a2, double b2, double a, double b) {
    return exactsign({2 * b2 * a, -2 * b2 * a1, -2 * b1 * a, a2, -a1, -2 * a2 * b, 2 * a2 * b1, 2 * a1 * b}) >= 0;
}

using lit = std::vector<bool>;

// Every pixel asked by itself whether the line lights it.
lit reference(float x1, float y1, float x2, float y2, int wide, int high) {
    double a1 = rounded(x1), b1 = rounded(y1), a2 = rounded(x2), b2 = rounded(y2);
    const bool steep = exactsign({std::max(a1, a2), -std::min(a1, a2), -std::max(b1, b2), std::min(b1, b2)}) < 0;
    if (steep) {
        std::swap(a1, b1);
        std::swap(a2, b2);
    }
    if (a1 > a2) {
        std::swap(a1, a2);
        std::swap(b1, b2);
    }
    lit result(static_cast<std::size_t>(wide * high));
    for (int y = 0; y < high; ++y)
        for (int x = 0; x < wide; ++x) {
            const int a = steep ? y : x, b = steep ? x : y;
            const bool on =
                a1 == a2 ? a == a1 && b == b1
                         : a >= a1 && a <= a2 && atleast(a1, b1, a2, b2, a, b) && !atleast(a1, b1, a2, b2, a, b + 1);
            result[static_cast<std::size_t>(y * wide + x)] = on;
        }
    return result;
}

lit pixelsof(const raster& r) {
    lit result;
    for (int i = 0; i < r.width() * r.height(); ++i) result.push_back(r.pixels()[i] != 0xffffffff);
    return result;
}

lit drawn(float x1, float y1, float x2, float y2, int wide, int high) {
    raster r(wide, high);
    r.line(x1, y1, x2, y2, red);
    return pixelsof(r);
}

class dice {
  public:
    float figure(double reach) { return static_cast<float>(std::uniform_real_distribution(-reach, reach)(engine)); }
    int whole(int from, int to) { return std::uniform_int_distribution(from, to)(engine); }
    // Of every size that is worked out exactly, and half pixels often.
    float anysize() {
        if (whole(0, 3) == 0) return static_cast<float>(whole(-40, 80)) / 2;
        return std::ldexp(figure(1), whole(0, 9) < 5 ? whole(0, 12) : whole(0, 29));
    }

  private:
    std::mt19937 engine{7};
};

}  // namespace

// A pixel off by one, a half rounded the other way, a direction that matters, an overflow in a product.
TEST(raster, lineLightsNearestPixelsForEndsOfAnySize) {
    dice d;
    constexpr int wide = 23, high = 17;
    int visible = 0;
    for (int i = 0; i < 30000; ++i) {
        const float x1 = d.anysize(), y1 = d.anysize(), x2 = d.anysize(), y2 = d.anysize();
        const lit expected = reference(x1, y1, x2, y2, wide, high);
        visible += expected != lit(expected.size());
        ASSERT_EQ(drawn(x1, y1, x2, y2, wide, high), expected) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
        ASSERT_EQ(drawn(x2, y2, x1, y1, wide, high), expected)
            << "reversed " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
    }
    EXPECT_GT(visible, 4000);
}

// Lines with an end at any distance that single precision knows: drawn from the near end on they miss a pixel now and
// then. With both ends out there, and with figures that are none, nothing breaks.
TEST(raster, linesFromFarAway) {
    dice d;
    constexpr int wide = 31, high = 19;
    int visible = 0, differing = 0;
    for (int i = 0; i < 10000; ++i) {
        const double angle = d.figure(3.2F), far = std::ldexp(1.0, d.whole(30, 127)), near = d.whole(0, 5000);
        const auto x1 = static_cast<float>(15 + far * std::cos(angle)),
                   y1 = static_cast<float>(9 + far * std::sin(angle));
        const auto x2 = static_cast<float>(15 - near * std::cos(angle)),
                   y2 = static_cast<float>(9 - near * std::sin(angle));
        const lit expected = reference(x1, y1, x2, y2, wide, high);
        visible += expected != lit(expected.size());
        differing += drawn(x1, y1, x2, y2, wide, high) != expected;
        for (const float other : {d.anysize() * 1e20F, -x1, std::nextafter(y1, 0.0F)}) drawn(x1, y1, other, y1, 9, 9);
    }
    EXPECT_GT(visible, 9000);
    EXPECT_LT(differing, 5);
}

// A clipped line that starts its count of pixels at the border.
TEST(raster, clippingMovesNoPixel) {
    dice d;
    constexpr int wide = 300, high = 200, left = 100, top = 70, small = 60;
    for (int i = 0; i < 3000; ++i) {
        const int x1 = d.whole(0, wide - 1), y1 = d.whole(0, high - 1), x2 = d.whole(0, wide - 1),
                  y2 = d.whole(0, high - 1);
        const auto f = [](int n) { return static_cast<float>(n); };
        raster whole(wide, high), part(small, small);
        whole.line(f(x1), f(y1), f(x2), f(y2), red);
        part.line(f(x1 - left), f(y1 - top), f(x2 - left), f(y2 - top), red);
        for (int y = 0; y < small; ++y)
            for (int x = 0; x < small; ++x) ASSERT_EQ(part.at(x, y), whole.at(x + left, y + top));
    }
}

TEST(raster, coordinatesThatAreNoNumbersDrawNothing) {
    const float nan = std::numeric_limits<float>::quiet_NaN(), infinity = std::numeric_limits<float>::infinity();
    for (const float bad : {nan, infinity, -infinity}) {
        EXPECT_EQ(drawn(bad, 1, 5, 5, 9, 9), lit(81));
        EXPECT_EQ(drawn(1, 1, 5, bad, 9, 9), lit(81));
    }
}

namespace {

// A point of a face: near the image, far off it, or at the mark of a point that was given up.
void randomcorner(dice& d, int kind, double& x, double& y) {
    const float reach = kind == 0 ? 12 : kind == 1 ? 60 : kind == 2 ? 300 : kind == 3 ? 2000 : 3e5F;
    const float middle = kind < 2 ? static_cast<float>(40) : 90;
    x = static_cast<double>(middle + d.figure(reach));
    y = static_cast<double>(middle + d.figure(reach));
    if (d.whole(0, 7) == 0) x = std::floor(x) + d.whole(0, 1) / 2.0;  // on a border between pixels
    if (d.whole(0, 7) == 0) y = std::floor(y) + d.whole(0, 1) / 2.0;
    if (d.whole(0, 40) == 0) y = 9999;
    if (d.whole(0, 60) == 0) y = std::numeric_limits<double>::quiet_NaN();
    if (d.whole(0, 60) == 0) x = std::ldexp(1.0, d.whole(20, 130)) * (d.whole(0, 1) * 2 - 1);
}

// Corners like those of a flat rectangle seen in perspective, or anywhere at all; sometimes two of them are one.
facecorners randomface(dice& d) {
    const int kind = d.whole(0, 4);
    facecorners f{};
    randomcorner(d, kind, f.x1, f.y1);
    randomcorner(d, kind, f.x2, f.y2);
    randomcorner(d, kind, f.x3, f.y3);
    randomcorner(d, kind, f.x4, f.y4);
    if (d.whole(0, 1) == 0) {
        f.x4 = f.x2 + f.x3 - f.x1 + static_cast<double>(d.figure(3));
        f.y4 = f.y2 + f.y3 - f.y1 + static_cast<double>(d.figure(3));
    }
    if (d.whole(0, 9) == 0) f.x2 = f.x1, f.y2 = f.y1;
    if (d.whole(0, 9) == 0) f.x4 = f.x3, f.y4 = f.y3;
    return f;
}

}  // namespace

// A hole that is filled though no line lights it, a pixel of a line that is lost, a line that is taken for its double.
TEST(raster, webLightsWhatItsLinesWould) {
    dice d;
    raster plain(200, 170), quick(200, 170);
    int lit = 0, holes = 0;
    for (int i = 0; i < 2000; ++i) {
        const facecorners f = randomface(d);
        const int sizes[] = {1, 7, 50, 200, 200, 200, 400, 1500};
        const int n = sizes[d.whole(0, 7)];
        for (raster* r : {&plain, &quick}) {
            plainway = r == &plain;
            r->clear();
            r->web(f, n, red);
        }
        const auto expected = pixelsof(plain);
        ASSERT_TRUE(pixelsof(quick) == expected)
            << "face " << i << ": " << f.x1 << ' ' << f.y1 << ", " << f.x2 << ' ' << f.y2 << ", " << f.x3 << ' ' << f.y3
            << ", " << f.x4 << ' ' << f.y4 << " by " << n;
        lit += std::count(expected.begin(), expected.end(), true) > 500;
        for (std::size_t p = 201; p + 201 < expected.size(); ++p)
            holes += !expected[p] && expected[p - 1] && expected[p + 1] && expected[p - 200] && expected[p + 200];
    }
    EXPECT_GT(lit, 300);
    EXPECT_GT(holes, 300);
}

// The series of sine and cosine, summed in pairs of doubles, about 31 figures; what is left to chance is the rounding
// of a value that agrees with the middle between two doubles in 14 figures more.

#include "core/sine.h"

#include <cmath>

namespace tessaly {

namespace {

constexpr double maxangle = 1e9;  // radians; beyond, a double is too coarse for an angle to mean anything

// A figure as the sum of two: low is what high leaves over.
struct pair {
    double high, low;
};

pair exactsum(double a, double b) {
    const double sum = a + b, second = sum - a;
    return {sum, (a - (sum - second)) + (b - second)};
}

// The factor's upper half: products of halves are exact.
double upperhalf(double a) {
    const double shifted = a * 134217729;  // 2^27 + 1
    return shifted - (shifted - a);
}

pair exactproduct(double a, double b) {
    const double product = a * b, a1 = upperhalf(a), b1 = upperhalf(b), a2 = a - a1, b2 = b - b1;
    return {product, ((a1 * b1 - product) + a1 * b2 + a2 * b1) + a2 * b2};
}

pair operator+(pair a, pair b) {
    const pair sum = exactsum(a.high, b.high);
    return exactsum(sum.high, sum.low + (a.low + b.low));
}

pair operator*(pair a, pair b) {
    const pair product = exactproduct(a.high, b.high);
    return exactsum(product.high, product.low + (a.high * b.low + a.low * b.high));
}

pair operator/(pair a, double b) {
    const double quotient = a.high / b;
    const pair product = exactproduct(quotient, b);
    return exactsum(quotient, ((a.high - product.high) - product.low + a.low) / b);
}

// first - first x^2 / ((n + 1) (n + 2)) + ...: with first 1 and n 0 the cosine of x, with x and 1 its sine.
double series(pair first, pair x, double n) {
    const pair square = x * x, minussquare{-square.high, -square.low};
    pair sum = first, term = first;
    for (int terms = 0; terms < 14; ++terms, n += 2) {
        term = term * minussquare / ((n + 1) * (n + 2));
        sum = sum + term;
    }
    return sum.high;
}

// The sine of the angle and so many quarters of a turn, by what the angle is beyond the nearest quarter.
double sinebeyond(double angle, double quarters) {
    constexpr double quarter[] = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54, -0x1.f1976b7ed8fbcp-110};  // pi / 2
    const double passed = std::floor(angle / quarter[0] + 0.5);
    pair rest{angle, 0};
    for (const double part : quarter) rest = rest + exactproduct(-passed, part);
    const double at = std::fmod(passed + quarters, 4), turned = at < 0 ? at + 4 : at;
    const bool odd = turned == 1 || turned == 3;
    const double sine = odd ? series({1, 0}, rest, 0) : series(rest, rest, 1);
    return turned < 2 ? sine : -sine;
}

}  // namespace

double sineof(double angle) { return std::abs(angle) < maxangle ? sinebeyond(angle, 0) : std::sin(angle); }
double cosineof(double angle) { return std::abs(angle) < maxangle ? sinebeyond(angle, 1) : std::cos(angle); }

}  // namespace tessaly

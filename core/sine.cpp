// The power series of sine and cosine, summed in pairs of doubles with about 31 significant digits. The rounding of a
// result to a double can be wrong only if it is so close to the midpoint of two doubles that more digits would decide.

#include "core/sine.h"

#include <cmath>

namespace tessaly {

namespace {

constexpr double maxangle = 1e9;  // radians

// A number as the unevaluated sum of two doubles; low is the rounding error of high.
struct pair {
    double high, low;
};

pair exactsum(double a, double b) {
    const double sum = a + b, roundedb = sum - a;
    return {sum, (a - (sum - roundedb)) + (b - roundedb)};
}

// Returns the upper half of the significant bits of a; products of halves are exact.
double upperhalf(double a) {
    const double shifted = a * 134217729;  // 2^27 + 1
    return shifted - (shifted - a);
}

pair exactproduct(double a, double b) {
    const double product = a * b, ahigh = upperhalf(a), bhigh = upperhalf(b), alow = a - ahigh, blow = b - bhigh;
    return {product, ((ahigh * bhigh - product) + ahigh * blow + alow * bhigh) + alow * blow};
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

// Sums first - first x^2 / ((n + 1) (n + 2)) + ... This is cos x if first is 1 and n is 0, and sin x if first is x and
// n is 1.
double series(pair first, pair x, double n) {
    const pair square = x * x, minussquare{-square.high, -square.low};
    pair sum = first, term = first;
    for (int terms = 0; terms < 14; ++terms, n += 2) {
        term = term * minussquare / ((n + 1) * (n + 2));
        sum = sum + term;
    }
    return sum.high;
}

// Returns the sine of angle + quarterturns * pi / 2. First reduces the angle to its difference from the nearest
// multiple of pi / 2. Then quadrant is the number of quarter turns, modulo 4.
double shiftedsine(double angle, double quarterturns) {
    constexpr double halfpi[] = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54, -0x1.f1976b7ed8fbcp-110};  // its parts
    const double nearest = std::floor(angle / halfpi[0] + 0.5);
    pair remainder{angle, 0};
    for (const double part : halfpi) remainder = remainder + exactproduct(-nearest, part);
    const double signedquadrant = std::fmod(nearest + quarterturns, 4);
    const double quadrant = signedquadrant < 0 ? signedquadrant + 4 : signedquadrant;
    const bool odd = quadrant == 1 || quadrant == 3;
    const double sine = odd ? series({1, 0}, remainder, 0) : series(remainder, remainder, 1);
    return quadrant < 2 ? sine : -sine;
}

}  // namespace

double sineof(double angle) { return std::abs(angle) < maxangle ? shiftedsine(angle, 0) : std::sin(angle); }
double cosineof(double angle) { return std::abs(angle) < maxangle ? shiftedsine(angle, 1) : std::cos(angle); }

}  // namespace tessaly

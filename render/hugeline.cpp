// Lines with an end so far outside that 64 bits cannot hold the products. Single precision reaches 2^128: products of
// two differences stay under 2^261. Only the pixels of the image are visited; where they begin is found by halving.

#include "render/linepart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace tessaly {

namespace {

// A signed whole number of 320 bits, two's complement, least significant limb first. It wraps; nothing here gets there.
class wideinteger {
  public:
    wideinteger() = default;
    // number is whole.
    explicit wideinteger(double number) {
        int power = 0;
        auto digits = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::abs(number), &power), 53));
        power -= 53;
        if (power < 0) {
            digits >>= -power;
            power = 0;
        }
        const auto limb = static_cast<std::size_t>(power / 32);
        const int shift = power % 32;
        const std::uint64_t low = (digits & 0xffffffff) << shift, high = ((digits >> 32) << shift) + (low >> 32);
        if (digits != 0) {
            limbs[limb] = static_cast<std::uint32_t>(low);
            limbs[limb + 1] = static_cast<std::uint32_t>(high);
            limbs[limb + 2] = static_cast<std::uint32_t>(high >> 32);
        }
        if (number < 0) *this = wideinteger() - *this;
    }

    bool negative() const { return (limbs.back() >> 31) != 0; }

    friend wideinteger operator+(const wideinteger& a, const wideinteger& b) {
        wideinteger sum;
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < size; ++i) {
            carry += std::uint64_t(a.limbs[i]) + b.limbs[i];
            sum.limbs[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        return sum;
    }
    friend wideinteger operator-(const wideinteger& a, const wideinteger& b) {
        wideinteger difference;
        std::uint64_t carry = 1;
        for (std::size_t i = 0; i < size; ++i) {
            carry += std::uint64_t(a.limbs[i]) + static_cast<std::uint32_t>(~b.limbs[i]);
            difference.limbs[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        return difference;
    }
    friend wideinteger operator*(const wideinteger& a, const wideinteger& b) {
        wideinteger product;
        for (std::size_t i = 0; i < size; ++i) {
            std::uint64_t carry = 0;
            for (std::size_t j = 0; i + j < size; ++j) {
                carry += std::uint64_t(a.limbs[i]) * b.limbs[j] + product.limbs[i + j];
                product.limbs[i + j] = static_cast<std::uint32_t>(carry);
                carry >>= 32;
            }
        }
        return product;
    }

  private:
    static constexpr std::size_t size = 10;
    std::array<std::uint32_t, size> limbs{};
};

double wholepixel(float coordinate) { return std::floor(static_cast<double>(coordinate) + 0.5); }

// The least number of from..to for which holds is true, to + 1 where it never is; once true it stays true.
template <class test>
int firstof(int from, int to, const test& holds) {
    int after = to + 1;
    while (from < after) {
        const int middle = from + (after - from) / 2;
        if (holds(middle))
            after = middle;
        else
            from = middle + 1;
    }
    return after;
}

}  // namespace

void walkhugeline(float x1, float y1, float x2, float y2, int wide, int high,
                  const std::function<void(int x, int y)>& light) {
    double a1 = wholepixel(x1), b1 = wholepixel(y1), a2 = wholepixel(x2), b2 = wholepixel(y2);
    int alength = wide, blength = high;
    const wideinteger dx = wideinteger(a2) - wideinteger(a1), dy = wideinteger(b2) - wideinteger(b1);
    const auto size = [](const wideinteger& d) { return d.negative() ? wideinteger() - d : d; };
    const bool steep = (size(dx) - size(dy)).negative();
    if (steep) {
        std::swap(a1, b1);
        std::swap(a2, b2);
        std::swap(alength, blength);
    }
    if (a1 > a2) {
        std::swap(a1, a2);
        std::swap(b1, b2);
    }
    if (a2 < 0 || a1 >= alength || a1 == a2) return;  // a1 == a2: one pixel, far outside

    const wideinteger start(a1), run = wideinteger(a2) - start, climb = wideinteger(b2) - wideinteger(b1);
    const wideinteger step = climb + climb, whole = run + run;
    // What is left of the line at column a above the lower edge of pixel b: below 0 the line passes under it.
    const auto restat = [&](int a, int b) {
        return step * (wideinteger(a) - start) + run - whole * (wideinteger(b) - wideinteger(b1));
    };
    const auto reaches = [&](int a, int b) { return !restat(a, b).negative(); };

    const int from = static_cast<int>(std::max(a1, 0.0)), to = static_cast<int>(std::min(a2, alength - 1.0));
    const bool rising = !climb.negative();
    const auto inside = [&](int a) { return rising ? reaches(a, 0) : !reaches(a, blength); };
    const auto beyond = [&](int a) { return rising ? reaches(a, blength) : !reaches(a, 0); };
    const int first = firstof(from, to, inside), last = firstof(from, to, beyond) - 1;
    if (first > last) return;

    int b = firstof(0, blength - 1, [&](int candidate) { return !reaches(first, candidate); }) - 1;
    wideinteger rest = restat(first, b);
    for (int a = first; a <= last; ++a) {
        steep ? light(b, a) : light(a, b);
        rest = rest + step;
        if (rising && !(rest - whole).negative()) {
            rest = rest - whole;
            ++b;
        } else if (rest.negative()) {
            rest = rest + whole;
            --b;
        }
    }
}

}  // namespace tessaly

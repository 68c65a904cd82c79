// Ends in blocks, lines into bits. A line is carried along in whole numbers of 2^-40 pixel: within a box of 1024 pixels
// its exact positions are multiples of 1/2048 pixel, so that a nudge of 2^-20 keeps the small error of the slope from
// ever crossing a pixel's border.

#include "render/facefill.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace tessaly {

namespace {

constexpr std::size_t block = 8;
constexpr int shift = 40;
constexpr std::int64_t one = std::int64_t(1) << shift, half = one / 2, nudge = one >> 20;

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

// The rounded ends of a block of lines, behind those of the line before.
struct endblock {
    std::array<int, block + 1> x1, y1, x2, y2;
};

// One coordinate of a block. The bias makes every sum positive, so that cutting it rounds down; up to mostpixels the
// sum is exact wherever the half matters.
void roundends(double from, double to, const double* shares, std::array<int, block + 1>& pixels) {
    constexpr double bias = 1 << 27;
    const double across = to - from;
    pixels[0] = pixels[block];
    for (std::size_t i = 0; i < block; ++i) {
        const auto narrowed = static_cast<float>(from + shares[i] * across);
        pixels[i + 1] = static_cast<int>(static_cast<double>(narrowed) + (bias + 0.5)) - static_cast<int>(bias);
    }
}

std::int64_t slopeof(int rise, int run) {
    return static_cast<std::int64_t>(static_cast<double>(rise) / run * static_cast<double>(one));
}

// Bits from .. to - 1 of a word, 0 <= from < to <= 64.
std::uint64_t bitrange(int from, int to) { return (~std::uint64_t(0) >> (64 - (to - from))) << from; }

}  // namespace

std::span<const pixelline> distinctlines(const rails& r, int n) {
    static std::array<pixelline, mostdivisions + 2 * block> lines;
    const double* const shares = sharesof(n);
    endblock e{};
    std::size_t found = 0;
    const auto count = static_cast<std::size_t>(n) + 1;
    for (std::size_t t = 0; t < count; t += block) {
        roundends(r.ax, r.bx, shares + t, e.x1);
        roundends(r.ay, r.by, shares + t, e.y1);
        roundends(r.cx, r.dx, shares + t, e.x2);
        roundends(r.cy, r.dy, shares + t, e.y2);
        std::array<int, block> differs;
        for (std::size_t i = 0; i < block; ++i)
            differs[i] =
                (e.x1[i] ^ e.x1[i + 1]) | (e.y1[i] ^ e.y1[i + 1]) | (e.x2[i] ^ e.x2[i + 1]) | (e.y2[i] ^ e.y2[i + 1]);
        if (t == 0) differs[0] = 1;
        // Each line is stored, and the place is taken where it differs: no branch to guess.
        for (std::size_t i = 0; i < std::min(block, count - t); ++i) {
            lines[found] = {e.x1[i + 1], e.y1[i + 1], e.x2[i + 1], e.y2[i + 1]};
            found += differs[i] != 0;
        }
    }
    return {lines.data(), found};
}

void pixelmask::cover(int itsleft, int itstop, int right, int bottom) {
    left = itsleft;
    top = itstop;
    rows = bottom - top + 1;
    words = (right - left) / 64 + 1;
    bits.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(words), 0);
}

void pixelmask::addline(const pixelline& l) {
    const int dx = l.x2 - l.x1, dy = l.y2 - l.y1;
    if (std::abs(dy) > std::abs(dx))
        dy > 0 ? addsteep(l.x1 - left, l.y1 - top, dx, dy) : addsteep(l.x2 - left, l.y2 - top, -dx, -dy);
    else
        dx > 0 ? addflat(l.x1 - left, l.y1 - top, dx, dy) : addflat(l.x2 - left, l.y2 - top, -dx, -dy);
}

// One pixel a row.
void pixelmask::addsteep(int x, int y, int dx, int dy) {
    const std::int64_t slope = slopeof(dx, dy);
    std::int64_t at = x * one + half + nudge;
    std::uint64_t* row = bits.data() + static_cast<std::ptrdiff_t>(y) * words;
    if (words == 1) {
        for (int k = dy; k >= 0; --k, at += slope) *row++ |= std::uint64_t(1) << (at >> shift);
        return;
    }
    for (int k = dy; k >= 0; --k, at += slope, row += words) {
        const std::int64_t pixel = at >> shift;
        row[pixel / 64] |= std::uint64_t(1) << (pixel % 64);
    }
}

// One run a row: row k begins at the first column that is half a row or more beyond row k - 1. On a line that climbs
// (y falling) exactly half a row is not enough.
void pixelmask::addflat(int x, int y, int dx, int dy) {
    const int lastrun = std::abs(dy);
    const std::int64_t slope = lastrun > 0 ? slopeof(dx, lastrun) : 0;
    std::int64_t at = x * one + slope / 2 + (dy < 0 ? nudge : -nudge);
    if (words == 1) {
        const std::ptrdiff_t down = dy < 0 ? -1 : 1;
        std::uint64_t* row = bits.data() + y;
        std::uint64_t from = ~std::uint64_t(0) << x;  // the bits from the run's first pixel on
        for (int k = 0; k < lastrun; ++k, at += slope, row += down) {
            const std::uint64_t next = (~std::uint64_t(0) << 1) << (at >> shift);
            *row |= from ^ next;
            from = next;
        }
        *row |= from ^ ((~std::uint64_t(0) << 1) << (x + dx));
        return;
    }
    int from = x;
    for (int k = 0; k < lastrun; ++k, at += slope, y += dy < 0 ? -1 : 1) {
        const int next = static_cast<int>(at >> shift) + 1;
        addrun(y, from, next);
        from = next;
    }
    addrun(y, from, x + dx + 1);
}

// The pixels from .. to - 1 of a row of several words.
void pixelmask::addrun(int row, int from, int to) {
    std::uint64_t* const word = bits.data() + static_cast<std::ptrdiff_t>(row) * words;
    const int first = from / 64, last = (to - 1) / 64;
    if (first == last) {
        word[first] |= bitrange(from % 64, to - first * 64);
        return;
    }
    word[first] |= bitrange(from % 64, 64);
    for (int w = first + 1; w < last; ++w) word[w] = ~std::uint64_t(0);
    word[last] |= bitrange(0, to - last * 64);
}

}  // namespace tessaly

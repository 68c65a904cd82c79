// The quick way of a face's fill: which pixels its two sets of lines light, gathered before any is painted.
#pragma once

#include "render/linepart.h"
#include "render/surface.h"

#include <bit>
#include <cstdint>
#include <span>
#include <vector>

namespace tessaly {

// The lines t = 0..n between edge a-b and edge c-d, as sweep draws them, in whole pixels; lines that repeat the one
// before are left out. The next call overwrites them. Corners up to mostpixels, n up to mostdivisions.
struct rails {
    double ax, ay, bx, by, cx, cy, dx, dy;
};
constexpr double mostpixels = 1 << 26;
constexpr int mostdivisions = 4096;
std::span<const pixelline> distinctlines(const rails& r, int n);

// Pixels of a box of the picture, at first none.
class pixelmask {
  public:
    static constexpr int mostsize = 1024;  // pixels of a box's side

    // Takes a new box; every pixel off.
    void cover(int left, int top, int right, int bottom);
    // Lights what raster::line would. The ends lie in the box.
    void addline(const pixelline& l);
    // Runs paint(y, x1, x2) for every run of lit pixels, row by row.
    template <class procedure>
    void overruns(procedure paint) const;

  private:
    void addsteep(int x, int y, int dx, int dy);
    void addflat(int x, int y, int dx, int dy);
    void addrun(int row, int from, int to);

    int left = 0, top = 0, rows = 0;
    int words = 1;                    // of a row
    std::vector<std::uint64_t> bits;  // row after row, the left pixel lowest
};

template <class procedure>
void pixelmask::overruns(procedure paint) const {
    const std::uint64_t* word = bits.data();
    for (int row = 0; row < rows; ++row)
        for (int w = 0; w < words; ++w, ++word)
            for (std::uint64_t lit = *word; lit != 0;) {
                const int first = std::countr_zero(lit);
                const std::uint64_t above = ~(lit >> first);  // never 0 but for a full word
                const int length = above == 0 ? 64 : std::countr_zero(above);
                paint(top + row, left + w * 64 + first, left + w * 64 + first + length - 1);
                if (first + length >= 64) break;
                lit &= ~std::uint64_t(0) << (first + length);
            }
}

}  // namespace tessaly

// Lines with an end beyond what the exact way holds. They are cut to its reach in double precision, from the nearer end
// on: with that end anywhere near the picture the pixels are the exact ones but for a hair at a border; with both ends
// beyond everything it is a line through the picture where there is one. No building comes near it.

#include "render/lineclip.h"

namespace tessaly {

namespace {

// Narrows from..to, shares of a line that begins at start and goes on by along, to what is within reach on one axis.
void narrow(double start, double along, double& from, double& to) {
    if (along == 0) {
        if (std::abs(start) > nearline) to = -1;
        return;
    }
    const auto [enters, leaves] = std::minmax({(-nearline - start) / along, (nearline - start) / along});
    from = std::max(from, enters);
    to = std::min(to, leaves);
}

int pixelat(double start, double along, double share) {
    return static_cast<int>(std::floor(std::clamp<double>(start + share * along, -nearline, nearline) + 0.5));
}

}  // namespace

bool cutpixels(double x1, double y1, double x2, double y2, pixelline& l) {
    if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return false;
    if (std::max(std::abs(x2), std::abs(y2)) < std::max(std::abs(x1), std::abs(y1))) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const double dx = x2 - x1, dy = y2 - y1;
    double from = 0, to = 1;
    narrow(x1, dx, from, to);
    narrow(y1, dy, from, to);
    l = {pixelat(x1, dx, from), pixelat(y1, dy, from), pixelat(x1, dx, to), pixelat(y1, dy, to)};
    return from <= to;
}

}  // namespace tessaly

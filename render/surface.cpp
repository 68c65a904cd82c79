// The plain way of the surface's compound operations: line by line.

#include "render/surface.h"

namespace tessaly {

surface* viewportsurface = nullptr;
surface* progresssurface = nullptr;

void surface::wash(int x1, int x2, int y1, int y2, colour c) {
    for (int y = y1; y <= y2; ++y)
        line(static_cast<float>(x1), static_cast<float>(y), static_cast<float>(x2), static_cast<float>(y), c);
}

void sweep(surface& on, double ax, double ay, double bx, double by, double cx, double cy, double dx, double dy, int n,
           colour c) {
    for (int t = 0; t <= n; ++t) {
        const double f = static_cast<double>(t) / n;
        on.line(static_cast<float>(ax + f * (bx - ax)), static_cast<float>(ay + f * (by - ay)),
                static_cast<float>(cx + f * (dx - cx)), static_cast<float>(cy + f * (dy - cy)), c);
    }
}

void surface::web(const facecorners& f, int n, colour c) {
    sweep(*this, f.x1, f.y1, f.x2, f.y2, f.x3, f.y3, f.x4, f.y4, n, c);
    sweep(*this, f.x1, f.y1, f.x3, f.y3, f.x2, f.y2, f.x4, f.y4, n, c);
}

}  // namespace tessaly

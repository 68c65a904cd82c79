// Draws rectangles and faces line by line.

#include "render/surface.h"

namespace tessaly {

void surface::drawbetween(const facecorners& f, int n, colour c) {
    for (int t = 0; t <= n; ++t) {
        const double fraction = static_cast<double>(t) / n;
        line(static_cast<float>(f.x1 + fraction * (f.x2 - f.x1)), static_cast<float>(f.y1 + fraction * (f.y2 - f.y1)),
             static_cast<float>(f.x3 + fraction * (f.x4 - f.x3)), static_cast<float>(f.y3 + fraction * (f.y4 - f.y3)),
             c);
    }
}

void surface::fillrows(int x1, int x2, int y1, int y2, colour c) {
    for (int y = y1; y <= y2; ++y)
        line(static_cast<float>(x1), static_cast<float>(y), static_cast<float>(x2), static_cast<float>(y), c);
}

void surface::fillface(const facecorners& f, int n, colour c) {
    drawbetween(f, n, c);
    drawbetween({f.x1, f.y1, f.x3, f.y3, f.x2, f.y2, f.x4, f.y4}, n, c);
}

}  // namespace tessaly

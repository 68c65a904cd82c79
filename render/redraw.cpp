// Redraws with the steps of the projector.

#include "render/redraw.h"

#include "core/world.h"
#include "render/palette.h"
#include "render/projector.h"
#include "render/surface.h"

namespace tessaly {

namespace {

constexpr int rightmost = 1450, lowest = 1010;  // of a clear, in pixels: beyond the edge of viewport

}  // namespace

void clearpicture() { viewportsurface->fillrows(1, rightmost, 1, lowest, backgroundcolour()); }

void replot() {
    // Deliberately starts at 2, unlike all other clears: row 1 and column 1 stay as they are.
    viewportsurface->fillrows(2, rightmost, 2, lowest, backgroundcolour());
    setplane();
    referencepass();
    drawgroups();
}

void rebasepoints() {
    makeeyerelative();
    rebaseonfocus();
    replot();
}

void shiftz() {
    const double step = focusstep;
    foreachpointinuse([step](int i) {
        ptz.set(i, ptz[i] - step);
        savez.set(i, ptz[i]);
    });
    replot();
}

void settle() {
    refready = 0;
    if (rebasedone != 0) return;
    rebasedone = 1;
    rebasepoints();
}

void restorepoints() {
    foreachpointinuse([](int i) { setpoint(i, basex[i], basey[i], basez[i]); });
}

}  // namespace tessaly

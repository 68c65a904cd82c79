// The quick path of a view change, on the projector's own steps.

#include "render/redraw.h"

#include "core/world.h"
#include "render/palette.h"
#include "render/projector.h"
#include "render/surface.h"

namespace tessaly {

namespace {

constexpr int rightmost = 1450, lowest = 1010;  // of a clear: more than the surface shows

}  // namespace

void clearpicture() { viewportsurface->fillrows(1, rightmost, 1, lowest, backgroundcolour()); }

void replot() {
    // From 2 on, unlike every other clear: row 1 and column 1 keep what was drawn there. It stays so.
    viewportsurface->fillrows(2, rightmost, 2, lowest, backgroundcolour());
    setplane();
    referencepass();
    drawgroups();
}

void rebasepoints() {
    relateeye();
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

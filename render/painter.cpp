// The solid painter draws only lines. There is no polygon fill and no depth buffer: nearer faces cover farther ones
// because they are painted later.

#include "render/painter.h"

#include "core/elementtypes.h"
#include "core/failure.h"
#include "core/world.h"
#include "render/locations.h"
#include "render/palette.h"
#include "render/projector.h"
#include "render/quadsort.h"
#include "render/surface.h"

namespace tessaly {

namespace {

constexpr int maxpainted = 100;  // the nearest quads

bool isroof(const value& filename) { return classofname(filename.text()) == &rooffiles; }

// A two-door panel cut at both ends is filled with the 200 divisions of the other panels. This is intended.
bool istwodoorpanel() {
    const auto& codes = twodoorpanel.codes;
    return panelcode.isnumber() && (panelcode == codes[0] || panelcode == codes[1] || panelcode == codes[2]);
}

int choosedivisions() {
    if (istwodoorpanel()) return 400;
    if (isroof(firstfilename) || isroof(secondfilename) || elementkind.is(rooffiles.kind)) return 1500;
    return 200;
}

void fillface(int q) {
    const value &c1 = quad1[q], &c2 = quad2[q], &c3 = quad3[q], &c4 = quad4[q];
    const facecorners f{screenx[c1], screeny[c1], screenx[c2], screeny[c2],
                        screenx[c3], screeny[c3], screenx[c4], screeny[c4]};
    viewportsurface->fillface(f, divisions, palettecolour(facecolour));
}

// Builds one rail of a framing direction: count points at s / count of its length for s = 0..count - 1, and the line
// ends at these points. The points are in model space, so the lines have the right perspective. framedirection draws
// the last line, at the end of the rails.
void buildrail(const value& start, const value& end, int firstpoint, int count, linetable& ends) {
    for (int s = 0; s < count; ++s) {
        const double fraction = static_cast<double>(s) / count;
        ptx.set(firstpoint + s, ptx[start] + fraction * (ptx[end] - ptx[start]));
        pty.set(firstpoint + s, pty[start] + fraction * (pty[end] - pty[start]));
        ptz.set(firstpoint + s, ptz[start] + fraction * (ptz[end] - ptz[start]));
        ends.set(framingscratch + s, firstpoint + s);
    }
}

// A direction of framing. Its lines join two rails: one from corner 1 to firstend, one from secondstart to corner 4.
struct direction {
    int number;
    const quadtable &counts, &firstend, &secondstart;
};
const direction directions[] = {{1, framing1, quad2, quad3}, {2, framing2, quad3, quad2}};

// Nothing sets the saved and base positions of the scratch points: a near-side walk starts from whatever the tables
// hold there, and restoring the position after projection overwrites a point. This is intended.
void framelines() {
    constexpr int maxlines = (lastpoint - framingscratch + 1) / 2;
    const int count = indexof(framen, "framing", maxlines);
    groupfirst.set(framinggroup, framingscratch);
    grouplast.set(framinggroup, framingscratch - 1 + count);
    buildrail(railstart1, railend1, framingscratch, count, lineend1);
    buildrail(railstart2, railend2, framingscratch + count, count, lineend2);
    drawlines(framingscratch, framingscratch - 1 + count, framecolour);
}

void framedirection(int q, const direction& d) {
    railstart1 = quad1[q];
    railend1 = d.firstend[q];
    railstart2 = d.secondstart[q];
    railend2 = quad4[q];
    framen = d.counts[q];
    curgroup = framinggroup;
    const colour c = palettecolour(framecolour);
    viewportsurface->line(static_cast<float>(screenx[railend2]), static_cast<float>(screeny[railend2]),
                          static_cast<float>(screenx[railend1]), static_cast<float>(screeny[railend1]), c);
    withsubscriptlocation([&] { return locationofframing(q, d.number); }, framelines);
}

void drawframing(int q) {
    if (framing1[q] == 0 && framing2[q] == 0) return;
    framecolour = quadcolour[q] + 1;
    const bool first = framing1[q] > 0, second = framing2[q] > 0;
    framesecond = first && second ? 1 : 0;
    if (first) framedirection(q, directions[0]);
    framesecond = 0;
    if (second) framedirection(q, directions[1]);
}

void paintface(int q) {
    if (rotz == 90 || rotz == 270) quadcolour.set(q, quadcolour[q] + 1);
    facecolour = quadcolour[q];
    fillface(q);
    drawframing(q);
}

}  // namespace

void paintsolids() {
    orderquads();
    divisions = choosedivisions();
    for (int i = maxpainted; i >= 1; --i) {
        if (emptyquad(i))
            continue;  // deliberate: tests slot i itself, since the quads of an element fill the table starting at 1
        const int q = indexof(quadorder[i], "quadorder", lastquad);
        withsubscriptlocation([q] { return locationofcolour(q); }, [q] { paintface(q); });
    }
}

}  // namespace tessaly

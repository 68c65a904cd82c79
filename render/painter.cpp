// The solid painter. Nothing but lines: no polygon fill, no depth buffer; the order of painting does the hiding.

#include "render/painter.h"

#include "core/colour.h"
#include "core/failure.h"
#include "core/world.h"
#include "render/projector.h"
#include "render/quadsort.h"
#include "render/surface.h"

namespace tessaly {

namespace {

constexpr int mostpainted = 100;  // nearest quads that are painted

bool isroof(const value& filename) { return filename.text().substr(0, 4) == "roof"; }

int choosedivisions() {
    if (panelcode.isnumber() && (panelcode == 19 || panelcode == 20 || panelcode == 21)) return 400;
    if (isroof(firstfilename) || isroof(secondfilename) || elementkind.is("roof")) return 1500;
    return 200;
}

void fillface(int q) {
    const value &c1 = quad1[q], &c2 = quad2[q], &c3 = quad3[q], &c4 = quad4[q];
    const facecorners f{screenx[c1], screeny[c1], screenx[c2], screeny[c2],
                        screenx[c3], screeny[c3], screenx[c4], screeny[c4]};
    viewportsurface->web(f, divisions, palettecolour(facecolour));
}

// One rail of a framing direction: count points from the rail's start, at s / count of its length, and the line ends
// that stand on them. Model space, so the lines keep their perspective; the last interval's end is the closing edge.
void buildrail(const value& start, const value& end, int firstpoint, int count, table<value, lastline>& ends) {
    for (int s = 0; s < count; ++s) {
        const double share = static_cast<double>(s) / count;
        ptx.set(firstpoint + s, ptx[start] + share * (ptx[end] - ptx[start]));
        pty.set(firstpoint + s, pty[start] + share * (pty[end] - pty[start]));
        ptz.set(firstpoint + s, ptz[start] + share * (ptz[end] - ptz[start]));
        ends.set(framingscratch + s, firstpoint + s);
    }
}

// The framing lines of one direction: count lines between rail start1-end1 and rail start2-end2. The scratch points
// have no saved positions and no base of their own: a near-side walk starts from what the tables hold there, and the
// restore overwrites them.
void framedirection(const value& start1, const value& end1, const value& start2, const value& end2,
                    const value& lines) {
    railstart1 = start1;
    railend1 = end1;
    railstart2 = start2;
    railend2 = end2;
    framen = lines;
    curgroup = framinggroup;
    const colour c = palettecolour(framecolour);
    viewportsurface->line(static_cast<float>(screenx[railend2]), static_cast<float>(screeny[railend2]),
                          static_cast<float>(screenx[railend1]), static_cast<float>(screeny[railend1]), c);
    const int count = indexof(framen, "framing count");
    groupfirst.set(framinggroup, framingscratch);
    grouplast.set(framinggroup, framingscratch - 1 + count);
    buildrail(railstart1, railend1, framingscratch, count, lineend1);
    buildrail(railstart2, railend2, framingscratch + count, count, lineend2);
    drawlines(framingscratch, framingscratch - 1 + count, framecolour);
}

void drawframing(int q) {
    if (framing1[q] == 0 && framing2[q] == 0) return;
    framecolour = quadcolour[q] + 1;
    const bool first = framing1[q] > 0, second = framing2[q] > 0;
    framesecond = first && second ? 1 : 0;
    if (first) framedirection(quad1[q], quad2[q], quad3[q], quad4[q], framing1[q]);
    framesecond = 0;
    if (second) framedirection(quad1[q], quad3[q], quad2[q], quad4[q], framing2[q]);
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
    for (int i = mostpainted; i >= 1; --i) {
        if (emptyquad(i)) continue;  // the slot at i itself: an element's quads fill the table from 1 upward
        const int q = indexof(quadorder[i], "quadorder");
        tellmisses([q] { return faceplace(q); }, [q] { paintface(q); });
    }
}

}  // namespace tessaly

// Sums and products are evaluated in the written order, so that all machines draw the same pixels.
// E is the eye, D the seed of the picture plane, C its centre, P a point; all relative to the focus.

#include "render/projector.h"

#include "core/failure.h"
#include "core/viewvalues.h"
#include "render/locations.h"
#include "render/palette.h"
#include "render/surface.h"

#include <cmath>
#include <optional>

namespace tessaly {

namespace {

constexpr int fullwalk = 299;  // steps of a line, by which a near end is moved until it is behind the picture plane
constexpr double mappingscale = 15.2, mappingx = 730, mappingy = 490;  // viewport pixels

// Eye, plane and focus as plain numbers, converted once per pass. Conversion fails for a text that is not a number.
struct sight {
    double ex, ey, ez;  // eye
    double dx, dy, dz;  // plane seed
    double cx, cy, cz;  // plane centre
    double focusx, focusy, focusz;
    double centresquared;  // C . C
};

sight takesight() {
    sight s{perpx,        perpy,        perpz,  planeseedx, planeseedy, planeseedz, planecentrex,
            planecentrey, planecentrez, focusx, focusy,     focusz,     0};
    s.centresquared = s.cx * s.cx + s.cy * s.cy + s.cz * s.cz;
    return s;
}

// Sets planex, planey, planez to the intersection of the line from the eye through point p with the picture plane:
// E + t(P - E) with t = (E.E - E.D) / (E.E - E.P), multiplied out.
void hitplane(const sight& s, int p) {
    const double px = ptx[p], py = pty[p], pz = ptz[p];
    const double ex = s.ex, ey = s.ey, ez = s.ez, dx = s.dx, dy = s.dy, dz = s.dz;
    const double divisor = ex * ex + ey * ey + ez * ez - ex * px - ey * py - ez * pz;
    if (divisor == 0) throw failure(failurekind::divisionbyzero, "a sight line runs along the picture plane");
    planex.set(p, ((ex * dx) * (ex - px) + (ey * ey) * px + (ez * ez) * px - (ey * px) * py - (ez * px) * pz +
                   (ey * dy) * (ex - px) + (ez * dz) * (ex - px) - (ey * py) * (ex - px) - (ez * pz) * (ex - px)) /
                      divisor);
    planey.set(p, ((ey * dy) * (ey - py) + (ex * ex) * py + (ez * ez) * py - (ex * py) * px - (ez * py) * pz +
                   (ex * dx) * (ey - py) + (ez * dz) * (ey - py) - (ex * px) * (ey - py) - (ez * pz) * (ey - py)) /
                      divisor);
    planez.set(p, ((ez * dz) * (ez - pz) + (ex * ex) * pz + (ey * ey) * pz - (ex * pz) * px - (ey * pz) * py +
                   (ex * dx) * (ez - pz) + (ey * dy) * (ez - pz) - (ex * px) * (ez - pz) - (ey * py) * (ez - pz)) /
                      divisor);
}

// Projects point p onto the picture plane: sets its intersection with the plane, then planedist, planecos, planeup and
// planeside, which are relative to the centre of the plane.
void projectpoint(const sight& s, int p) {
    hitplane(s, p);
    const double hx = planex[p] - s.cx, hy = planey[p] - s.cy, hz = planez[p] - s.cz;
    const double rx = planex[referencepoint] - s.cx, ry = planey[referencepoint] - s.cy,
                 rz = planez[referencepoint] - s.cz;
    const double distance = std::sqrt((hx * hx + hy * hy) + hz * hz);
    const double reference = std::sqrt(rx * rx + ry * ry + rz * rz), divisor = distance * reference;
    if (divisor == 0)
        throw failure(failurekind::divisionbyzero, reference == 0
                                                       ? "the eye is straight above or below the focus"
                                                       : "a point lies on the line from the eye to the focus");
    const double cosine = ((hx * rx + hy * ry) + hz * rz) / divisor;
    planedist.set(p, distance);
    planecos.set(p, cosine);
    planeup.set(p, distance * cosine);
    if (cosine > 0.9999 || cosine < -0.9999) {
        planeside.set(p, 0);
        return;
    }
    const double side = distance * std::sqrt(1 - cosine * cosine);
    planeside.set(p, s.cx * planey[p] - s.cy * planex[p] < 0 ? -1 * side : side);
}

bool nearside(const sight& s, int p) { return (s.cx * ptx[p] + s.cy * pty[p]) + s.cz * ptz[p] > s.centresquared; }

void restoreposition(const sight& s, int p) {
    setpoint(p, basex[p] - s.focusx, basey[p] - s.focusy, basez[p] - s.focusz);
}

// Moves p along its line towards the other end, from the saved position, until it is on the far side of the plane. Both
// ends of a line share the remaining steps. Returns false if they are used up; screeny[p] then marks the end as failed.
bool walktofarside(const sight& s, int p, int other) {
    while (nearside(s, p)) {
        --walkcount;
        if (walkcount == 0) {
            walkcount = fullwalk;
            restoreposition(s, p);
            screeny.set(p, sentinel);
            return false;
        }
        const double fraction = static_cast<double>(walkcount) / fullwalk;
        setpoint(p, fraction * (savex[p] - ptx[other]) + ptx[other], fraction * (savey[p] - pty[other]) + pty[other],
                 fraction * (savez[p] - ptz[other]) + ptz[other]);
    }
    return true;
}

bool projectend(const sight& s, int p, int other) {
    if (!walktofarside(s, p, other)) return false;
    projectpoint(s, p);
    restoreposition(s, p);
    return true;
}

void mapend(int p, double scale, double shiftright, double shiftup) {
    screenx.set(p, ((scale * mappingscale) * planeside[p] + mappingx) + shiftright);
    screeny.set(p, ((scale * -mappingscale) * planeup[p] + mappingy) - shiftup);
}

// Returns a line end as a point index. Reports a bad one with the row that contains it.
int lineend(const linetable& ends, int line, int end) {
    const value& number = ends[line];
    const double whole = nearestwhole(number);
    if (whole >= 0 && whole <= lastpoint) return static_cast<int>(whole);
    const int group = static_cast<int>(double(curgroup)), row = line - static_cast<int>(double(groupfirst[group])) + 1;
    throw failure(failurekind::subscript,
                  "point " + plaintext(number) + ", a point 0.." + std::to_string(lastpoint) + " was expected",
                  locationoflineend(group, row, end));
}

bool samenumber(const value& focus, const value& eye) { return double(eye) == double(focus); }

void prepareview() {
    if (skipfixup == 1) {
        skipfixup = 0;
    } else {
        refready = 0;
        if (viewprompt.is("AUTOMA")) {
            nudgeview(samenumber);
            storeeye();
            viewprompt = "PROMPT";
        }
        mag = 10 * mag;
    }
    makeeyerelative();
}

void writeviewback() {
    rebasedone = 0;
    perpabsx = perprelx + focusx;
    perpabsy = perprely + focusy;
    perpabsz = perprelz + focusz;
    magshown = mag * 0.1;
    writeviewboxes(projectioncuts);
}

}  // namespace

void plotgroups() {
    double sum = 0;
    for (int group = 1; group <= linegroups; ++group) {
        groupfirst.set(group, sum + 1);
        sum += linecount[group];
        grouplast.set(group, sum);
    }
    grouplast.set(linegroups, sum + 1);  // deliberate: the last group has one line more than its count

    if (plotstate == 1 || plotstate == 2) {
        perpx = perprelx;
        perpy = perprely;
        perpz = perprelz;
        refready = 0;
        skipfixup = 1;
    }
    projectdraw();
}

void projectdraw() {
    prepareview();
    rebaseonfocus();
    setplane();
    referencepass();
    if (plotstate == 0 && repaintmainwindow) repaintmainwindow();
    drawgroups();
    writeviewback();
}

void foreachpointinuse(const std::function<void(int)>& step) {
    constexpr int before[] = {0, 0, 2000, 4000, 6000};  // last index before each block
    for (const int block : {1, 2, 3, 4}) {
        if (block == 2 && !(drawset.isnumber() && drawset == 2)) continue;
        const int last = before[block] + indexof(ptcount[block], "ptcount", lastpoint);
        for (int i = before[block] + 1; i <= last; ++i) step(i);
    }
}

void setplane() {
    setpoint(referencepoint, 0, 0, 1);
    const double ex = perpx, ey = perpy, ez = perpz;
    planeseedx = 0.94 * ex;
    planeseedy = 0.94 * ey;
    planeseedz = 0.95 * ez;  // deliberate: not 0.94, so the seed is not on the eye axis
    const double s = ((ex * planeseedx) + (ey * planeseedy)) + (ez * planeseedz);
    const double q = ((ex * ex) + (ey * ey)) + (ez * ez);
    if (q == 0) throw failure(failurekind::divisionbyzero, "the eye is at the focus");
    planecentrex = (ex * s) / q;
    planecentrey = (ey * s) / q;
    planecentrez = (ez * s) / q;
}

void referencepass() {
    if (refready != 0) return;
    projectpoint(takesight(), referencepoint);  // also sets the direction to which planecos refers
    refready = 1;
}

void drawlines(int first, int last, const value& palettecolourindex) {
    const sight s = takesight();
    std::optional<colour> c;  // a bad index fails only when a line is drawn
    const double scale = mag, shiftright = horizshift, shiftup = vertshift;
    for (int k = first; k <= last; ++k) {
        walkcount = fullwalk;
        const int end1 = lineend(lineend1, k, 1), end2 = lineend(lineend2, k, 2);
        if (!projectend(s, end1, end2) || !projectend(s, end2, end1)) continue;
        mapend(end1, scale, shiftright, shiftup);
        mapend(end2, scale, shiftright, shiftup);
        if (!c) c = palettecolour(palettecolourindex);
        viewportsurface->line(static_cast<float>(screenx[end1]), static_cast<float>(screeny[end1]),
                              static_cast<float>(screenx[end2]), static_cast<float>(screeny[end2]), *c);
    }
}

void drawgroups() {
    for (int group = 1; group <= linegroups; ++group) {
        if (linecount[group] == 0) continue;
        curgroup = group;
        curwirecolour = wirecolour[group];
        const int first = indexof(groupfirst[group], "groupfirst", lastline),
                  last = indexof(grouplast[group], "grouplast", lastline);
        withsubscriptlocation([group] { return locationofwirecolour(group); },
                              [first, last] { drawlines(first, last, curwirecolour); });
    }
}

void storeeye() {
    perprelx = perpx;
    perprely = perpy;
    perprelz = perpz;
}

void makeeyerelative() {
    if (perprelative != 0) return;
    perpx = perpx - focusx;
    perpy = perpy - focusy;
    perpz = perpz - focusz;
    perprelative = 1;
    storeeye();
}

void nudgeview(bool (*same)(const value& focus, const value& eye)) {
    constexpr double factors[] = {0.997, 0.998, 0.999}, replacement = 0.1;
    if (same(focusx, perpx) && same(focusy, perpy)) perpx = perpx * factors[0];
    if (same(focusx, perpx) && same(focusz, perpz)) perpx = perpx * factors[1];
    if (same(focusy, perpy) && same(focusz, perpz)) perpy = perpy * factors[2];
    for (value* number : {&focusy, &focusx, &focusz, &perpx, &perpy, &perpz})
        if (*number == 0) *number = replacement;  // so that no divisor below is 0
    if (perpx / perpy == focusx / focusy) perpx = perpx * factors[0];
    if (perpx / perpz == focusx / focusz) perpx = perpx * factors[1];
    if (perpy / perpz == focusy / focusz) perpy = perpy * factors[2];
}

void rebaseonfocus() {
    const double fx = focusx, fy = focusy, fz = focusz;
    foreachpointinuse([&](int i) {
        ptx.set(i, ptx[i] - fx);
        pty.set(i, pty[i] - fy);
        ptz.set(i, ptz[i] - fz);
        savex.set(i, ptx[i]);
        savey.set(i, pty[i]);
        savez.set(i, ptz[i]);
    });
}

}  // namespace tessaly

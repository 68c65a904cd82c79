// The walk of the eye. The eye itself is never held to the square: only what was read from the boxes is, so an eye past
// a limit walks on out there.

#include "view/rotation.h"

#include "render/redraw.h"
#include "view/manualview.h"
#include "view/viewboxes.h"

namespace tessaly {

namespace {

constexpr double limit = 1800;  // model units, absolute: half the side of the square

// A side of the square, by rotstage: what moves along it and which way, and the stage behind it in each direction.
struct side {
    value &eye, &relative, &seen;  // seen: as last read from the box
    control& box;
    int sign;
    std::size_t cut;  // of the limit in its box; the Y box loses a digit for the moment that it stands there
    int nextleft, nextright;
};
const side sides[] = {
    // clang-format off
    {perpx, perprelx, rotboxx, perptxtx, -1, 5, 2, 4},
    {perpy, perprely, rotboxy, perptxty,  1, 4, 3, 1},
    {perpx, perprelx, rotboxx, perptxtx,  1, 5, 4, 2},
    {perpy, perprely, rotboxy, perptxty, -1, 4, 1, 3},
    // clang-format on
};

const side& sideinforce() {
    for (int stage = 2; stage <= 4; ++stage)
        if (rotstage == stage) return sides[stage - 1];
    return sides[0];
}

bool limitmet(const side& s) { return s.sign < 0 ? s.seen <= -limit : s.seen >= limit; }

void readeyeboxes() {
    rotboxx = Val(perptxtx.text);
    rotboxy = Val(perptxty.text);
}

void step(const side& s, double rotinc) {
    s.eye = s.eye + s.sign * rotinc;
    s.relative = s.eye;
    settle();
    replot();
    sumeye();
    writeeyeboxes(perpsumx, perpsumy, perpsumz, 5);
    readeyeboxes();
}

// A click on an arrow: along the side in force, and around the corner where its limit is met before or after the step.
// It ends, for opposite sides cannot both be met within one step.
void walk(int side::*next) {
    const double rotinc = pickedstep(rotincbox, usualwalk);
    readeyeboxes();
    for (;;) {
        const side& s = sideinforce();
        if (!limitmet(s)) {
            step(s, rotinc);
            if (!limitmet(s)) return;
        }
        s.seen = s.sign * limit;
        writebox(s.box, boxtext(s.seen, s.cut));
        rotstage = s.*next;
    }
}

void showleftarrow() {
    show(rotleftbtn);
    hide(rotrightbtn);
}

void showrightarrow() {
    show(rotrightbtn);
    hide(rotleftbtn);
}

}  // namespace

void clickactivateleftbtn() {
    rotstage = 1;
    showleftarrow();
    hide(activateleftbtn);
    show(rotincbtn);
    perpx = 1850;
    perpy = -1850;
    perpz = boxvalue(perptxtz);  // shown absolute, from now on above the focus: the eye rises by the focus' height
    focusx = 0;
    focusy = 0;
    focusz = 180;
    mag = boxvalue(magtxt);
    vertshift = boxvalue(verttxt);
    horizshift = boxvalue(horiztxt);
    drawrelativeview();
}

void clickrotleftbtn() {
    show(activaterightbtn);
    showleftarrow();
    walk(&side::nextleft);
}

void clickrotrightbtn() {
    showrightarrow();
    walk(&side::nextright);
}

void clickactivaterightbtn() {
    if (rotboxy <= -limit && rotboxx < limit) rotstage = 3;
    if (rotboxy > -limit && rotboxx <= -limit) rotstage = 4;
    if (rotboxy >= limit && rotboxx > -limit) rotstage = 1;
    if (rotboxy < limit && rotboxx >= limit) rotstage = 2;
    showrightarrow();
    show(reactivateleftbtn);
}

void clickreactivateleftbtn() {
    if (rotboxx > -limit && rotboxy <= -limit) rotstage = 1;
    if (rotboxx >= limit && rotboxy > -limit) rotstage = 4;
    if (rotboxx < limit && rotboxy >= limit) rotstage = 3;
    if (rotboxx <= -limit && rotboxy < limit) rotstage = 2;
    showleftarrow();
}

}  // namespace tessaly

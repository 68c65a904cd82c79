// Moves the eye along the sides of the square. The limits of the square apply to the numbers read from the boxes, not
// to the eye itself: an eye beyond a limit continues outside the square.

#include "view/rotation.h"

#include "core/viewvalues.h"
#include "render/redraw.h"
#include "view/manualview.h"
#include "view/stepping.h"

namespace tessaly {

namespace {

constexpr double limit = 1800;  // model units, absolute: half the side of the square

// A side of the square, in the order of rotstage: the coordinate of the eye that changes along it, and the next stages.
struct side {
    value &eye, &storedeye, &boxnumber;  // boxnumber: as last read from the box
    control& box;
    int sign;         // direction in which the coordinate changes
    std::size_t cut;  // number of characters to which the limit is cut in the box: Y -1800 becomes "-180"
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

const side& currentside() {
    for (int stage = 2; stage <= 4; ++stage)
        if (rotstage == stage) return sides[stage - 1];
    return sides[0];
}

bool limitmet(const side& s) { return s.sign < 0 ? s.boxnumber <= -limit : s.boxnumber >= limit; }

void readeyeboxes() {
    rotboxx = Val(perptxtx.text);
    rotboxy = Val(perptxty.text);
}

void step(const side& s, double rotinc) {
    s.eye = s.eye + s.sign * rotinc;
    s.storedeye = s.eye;
    settle();
    replot();
    writeviewboxes(rotationcuts);
    readeyeboxes();
}

// Moves the eye along the current side by one step. If the limit of the side is reached before or after the step,
// continues with the next side. The loop ends because a step is shorter than a side.
void walk(int side::*next) {
    const double rotinc = pickedincrement(rotincbox, defaultrotation);
    readeyeboxes();
    for (;;) {
        const side& s = currentside();
        if (!limitmet(s)) {
            step(s, rotinc);
            if (!limitmet(s)) return;
        }
        s.boxnumber = s.sign * limit;
        writebox(s.box, boxtext(s.boxnumber, s.cut));
        rotstage = s.*next;
    }
}

void showarrow(control& arrow, control& other) {
    show(arrow);
    hide(other);
}

}  // namespace

void clickactivateleftbtn() {
    rotstage = 1;
    showarrow(rotleftbtn, rotrightbtn);
    hide(activateleftbtn);
    show(rotincbtn);
    perpx = 1850;
    perpy = -1850;
    readbox(eyevalues[2]);  // absolute in the box, relative to the focus from now on: the eye rises by the focus Z
    focusx = 0;
    focusy = 0;
    focusz = 180;
    readbox(magvalue);
    for (const viewvalue& v : shiftvalues) readbox(v);
    drawrelativeview();
}

void clickrotleftbtn() {
    show(activaterightbtn);
    showarrow(rotleftbtn, rotrightbtn);
    walk(&side::nextleft);
}

void clickrotrightbtn() {
    showarrow(rotrightbtn, rotleftbtn);
    walk(&side::nextright);
}

void clickactivaterightbtn() {
    if (rotboxy <= -limit && rotboxx < limit) rotstage = 3;
    if (rotboxy > -limit && rotboxx <= -limit) rotstage = 4;
    if (rotboxy >= limit && rotboxx > -limit) rotstage = 1;
    if (rotboxy < limit && rotboxx >= limit) rotstage = 2;
    showarrow(rotrightbtn, rotleftbtn);
    show(reactivateleftbtn);
}

void clickreactivateleftbtn() {
    if (rotboxx > -limit && rotboxy <= -limit) rotstage = 1;
    if (rotboxx >= limit && rotboxy > -limit) rotstage = 4;
    if (rotboxx < limit && rotboxy >= limit) rotstage = 3;
    if (rotboxx <= -limit && rotboxy < limit) rotstage = 2;
    showarrow(rotleftbtn, rotrightbtn);
}

}  // namespace tessaly

// A step: the value changes, the points settle, the picture is drawn again, the value's boxes are written.

#include "view/stepping.h"

#include "render/redraw.h"
#include "view/rotation.h"
#include "view/viewboxes.h"

namespace tessaly {

namespace {

constexpr double magscale = 10;  // mag while displaying over its number in magtxt

// The point looked at, down or up. The eye is kept relative to the focus: it moves against it and so stays in its
// place. writes: focusz, perpz, perprelz, the boxes of eye, focus and magnification, efocuszbox.
void stepfocus(int sign, double by) {
    focusinc = by;
    focusz = focusz + sign * focusinc;
    focussign = sign;
    perpz = perpz - sign * focusinc;
    perprelz = perpz;
    settle();
    focusstep = sign * focusinc;
    shiftz();
    writesteppedview();
    copytoeasyviews(focusvalues[2]);
}

// The eye, down or up. writes: perpz, perprelz, the same boxes, eperpzbox.
void stepperp(int sign, double by) {
    focusstep = by;
    perpz = perpz + sign * focusstep;
    perprelz = perpz;
    settle();
    replot();
    writesteppedview();
    copytoeasyviews(eyevalues[2]);
}

// By steps of its box. writes: mag, magshown, magtxt.
void stepmag(int sign, double by) {
    maginc = by;
    mag = mag + sign * (magscale * maginc);
    magshown = 0.1 * mag;
    settle();
    replot();
    sumeye();
    writebox(magtxt, boxtext(magshown, 6));
}

// The number in the first five characters of a shift's text: the rest is lost. If they end within the exponent of a
// large number, the digits before it count; a shift that does not begin as a number fails.
double frontof(const value& shift) {
    const std::string front = (shift.isnumber() ? plaindigits(shift) : shift.text()).substr(0, 5);
    if (!strictnumber(front)) static_cast<void>(static_cast<double>(shift));
    return Val(front);
}

// writes: the shift and its box; fails: type mismatch where the shift is no number.
void stepshift(int sign, double by, value& shift, control& box) {
    shiftinc = by;
    shift = frontof(shift) + sign * shiftinc;
    settle();
    replot();
    writebox(box, boxtext(shift, 5));
}

// A list of steps and the button that shows it.
struct steplist {
    control &button, &list;
};
constexpr steplist increments{incrementbtn, incrementlist}, magincrements{magincbtn, magincbox},
    rotincrements{rotincbtn, rotincbox};

struct steppair {
    control &down, &up;
    const steplist& from;
    double usual;  // step without a pick: model units, units of magtxt, viewport pixels
    void (*step)(int sign, double by);
};
const steppair pairs[] = {
    // clang-format off
    {vertfocusminusbtn, vertfocusplusbtn, increments,    50,        stepfocus},
    {vertperpminusbtn,  vertperpplusbtn,  increments,    100,       stepperp},
    {magminusbtn,       magplusbtn,       magincrements, 0.001,     stepmag},
    {vertdec,           vertinc,          increments,    50,        [](int sign, double by) { stepshift(sign, by, vertshift, verttxt); }},
    {horizdec,          horizinc,         increments,    50,        [](int sign, double by) { stepshift(sign, by, horizshift, horiztxt); }},
    {rotleftbtn,        rotrightbtn,      rotincrements, usualwalk, nullptr},  // the rotation's own procedures step
    // clang-format on
};

// Writes into the tooltip of each step by how much it goes, and the list that this was picked in.
void notesteps() {
    for (const steppair& p : pairs) {
        const double by = pickedstep(p.from.list, p.usual);
        const bool picked = pickedstep(p.from.list, 0) != 0;
        const std::string from = picked ? ", picked in \"" + p.from.button.text + '"' : "";
        p.down.note = p.up.note = " by " + boxtext(by) + from;
    }
}

}  // namespace

void definesteps() {
    for (const steppair& p : pairs) {
        p.down.repeats = p.up.repeats = true;
        if (!p.step) continue;
        p.down.run = [&p] { p.step(-1, pickedstep(p.from.list, p.usual)); };
        p.up.run = [&p] { p.step(1, pickedstep(p.from.list, p.usual)); };
    }
    for (const steplist* l : {&increments, &magincrements, &rotincrements}) {
        l->button.run = [l] { show(l->list); };
        l->list.run = [l] {
            hide(l->list);
            notesteps();
        };
    }
    notesteps();
}

}  // namespace tessaly

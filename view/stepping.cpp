// A step: the value changes, the points settle, the picture is drawn again, the value's boxes are written.

#include "view/stepping.h"

#include "render/redraw.h"
#include "view/viewboxes.h"

namespace tessaly {

namespace {

constexpr double usualfocusstep = 50, usualperpstep = 100;  // model units
constexpr double usualmagstep = 0.001;                      // units of magtxt
constexpr double usualshiftstep = 50;                       // viewport pixels
constexpr double magscale = 10;                             // mag while displaying over its figure in magtxt

// The point looked at, down or up. The eye is kept relative to the focus: it moves against it and so stays in its
// place. reads: incrementlist; writes: focusz, perpz, perprelz, the boxes of eye, focus and magnification, efocuszbox.
void stepfocus(int sign) {
    focusinc = pickedstep(incrementlist, usualfocusstep);
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

// The eye, down or up. reads: incrementlist; writes: perpz, perprelz, the same boxes, eperpzbox.
void stepperp(int sign) {
    focusstep = pickedstep(incrementlist, usualperpstep);
    perpz = perpz + sign * focusstep;
    perprelz = perpz;
    settle();
    replot();
    writesteppedview();
    copytoeasyviews(eyevalues[2]);
}

// By steps of its box. reads: magincbox; writes: mag, magshown, magtxt.
void stepmag(int sign) {
    maginc = pickedstep(magincbox, usualmagstep);
    mag = mag + sign * (magscale * maginc);
    magshown = 0.1 * mag;
    settle();
    replot();
    sumeye();
    magtxt.text = boxtext(magshown, 6);
}

// What five characters hold of a shift: what stands behind them is lost, whatever it is. Where they end within an
// exponent, the digits in front of it count; a shift that does not begin as a number fails.
double frontof(const value& shift) {
    const std::string front = shift.text().substr(0, 5);
    if (!strictnumber(front)) static_cast<void>(static_cast<double>(shift));
    return Val(front);
}

// reads: incrementlist; writes: the shift and its box; fails: type mismatch where the shift is no number.
void stepshift(int sign, value& shift, control& box) {
    shiftinc = pickedstep(incrementlist, usualshiftstep);
    shift = frontof(shift) + sign * shiftinc;
    settle();
    replot();
    box.text = boxtext(shift, 5);
}

struct steppair {
    control &down, &up;
    void (*step)(int sign);
};
const steppair pairs[] = {
    {vertfocusminusbtn, vertfocusplusbtn, stepfocus},
    {vertperpminusbtn, vertperpplusbtn, stepperp},
    {magminusbtn, magplusbtn, stepmag},
    {vertdec, vertinc, [](int sign) { stepshift(sign, vertshift, verttxt); }},
    {horizdec, horizinc, [](int sign) { stepshift(sign, horizshift, horiztxt); }},
};

struct steplist {
    control &button, &list;
};
const steplist lists[] = {{incrementbtn, incrementlist}, {magincbtn, magincbox}, {rotincbtn, rotincbox}};

}  // namespace

void definesteps() {
    for (const steppair& p : pairs) {
        p.down.run = [&p] { p.step(-1); };
        p.up.run = [&p] { p.step(1); };
    }
    for (const steplist& l : lists) {
        l.button.run = [&l] { show(l.list); };
        l.list.run = [&l] { hide(l.list); };
    }
}

}  // namespace tessaly

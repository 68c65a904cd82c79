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

// The eye is kept relative to the focus: it moves against it and so stays in its place.
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
    copytoeasyviews(focusfigures[2]);
}

void stepperp(int sign) {
    focusstep = pickedstep(incrementlist, usualperpstep);
    perpz = perpz + sign * focusstep;
    perprelz = perpz;
    settle();
    replot();
    writesteppedview();
    copytoeasyviews(eyefigures[2]);
}

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

void stepshift(int sign, value& shift, control& box) {
    shiftinc = pickedstep(incrementlist, usualshiftstep);
    shift = frontof(shift) + sign * shiftinc;
    settle();
    replot();
    box.text = boxtext(shift, 5);
}

}  // namespace

void clickvertfocusminusbtn() { stepfocus(-1); }
void clickvertfocusplusbtn() { stepfocus(1); }
void clickvertperpminusbtn() { stepperp(-1); }
void clickvertperpplusbtn() { stepperp(1); }
void clickmagminusbtn() { stepmag(-1); }
void clickmagplusbtn() { stepmag(1); }
void clickvertinc() { stepshift(1, vertshift, verttxt); }
void clickvertdec() { stepshift(-1, vertshift, verttxt); }
void clickhorizinc() { stepshift(1, horizshift, horiztxt); }
void clickhorizdec() { stepshift(-1, horizshift, horiztxt); }

void clickincrementbtn() { show(incrementlist); }
void pickincrementlist() { hide(incrementlist); }
void clickmagincbtn() { show(magincbox); }
void pickmagincbox() { hide(magincbox); }

}  // namespace tessaly

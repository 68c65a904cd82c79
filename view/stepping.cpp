// A step changes a view value, rebases the points if needed, replots, and writes boxes of the view.

#include "view/stepping.h"

#include "core/viewvalues.h"
#include "render/redraw.h"

namespace tessaly {

namespace {

constexpr double magscale = 10;  // mag is this many times the number in magtxt

// Moves the focus down or up. The eye, which is stored relative to the focus, moves in the opposite direction, so that
// its absolute position is unchanged.
void stepfocus(int sign, double increment) {
    focusinc = increment;
    focusz = focusz + sign * focusinc;
    focussign = sign;
    perpz = perpz - sign * focusinc;
    perprelz = perpz;
    settle();
    focusstep = sign * focusinc;
    shiftz();
    writeviewboxes(eyestepcuts);
    copytoeasyviews(focusvalues[2]);
}

// Moves the eye down or up.
void stepeye(int sign, double increment) {
    focusstep = increment;
    perpz = perpz + sign * focusstep;
    perprelz = perpz;
    settle();
    replot();
    writeviewboxes(eyestepcuts);
    copytoeasyviews(eyevalues[2]);
}

void stepmag(int sign, double increment) {
    maginc = increment;
    mag = mag + sign * (magscale * maginc);
    magshown = 0.1 * mag;
    settle();
    replot();
    writeviewboxes(magstepcuts);
}

// Returns the number in the first five characters of a shift; its other characters are lost. If they end within an
// exponent, returns the number before the exponent. fails: type mismatch if neither they nor the shift are a number.
double cutshift(const value& shift) {
    const std::string digits = (shift.isnumber() ? plaindigits(shift) : shift.text()).substr(0, 5);
    if (!strictnumber(digits)) static_cast<void>(double(shift));  // fails for a text that is not a number
    return Val(digits);
}

void stepshift(int sign, double increment, const viewvalue& shift) {
    shiftinc = increment;
    shift.variable = cutshift(shift.variable) + sign * shiftinc;
    settle();
    replot();
    writebox(shift.box, boxtext(shift.variable, 5));
}

// A pair of buttons, the list in which their increment is picked, and the button that shows the list.
struct steppair {
    control &down, &up, &list, &listbutton;
    double defaultincrement;  // without a pick: model units, units of magtxt, viewport pixels
    void (*step)(int sign, double increment);
};
const steppair pairs[] = {
    // clang-format off
    {vertfocusminusbtn, vertfocusplusbtn, incrementlist, incrementbtn, 50,        stepfocus},
    {vertperpminusbtn,  vertperpplusbtn,  incrementlist, incrementbtn, 100,       stepeye},
    {magminusbtn,       magplusbtn,       magincbox,     magincbtn,    0.001,     stepmag},
    {vertdec,           vertinc,          incrementlist, incrementbtn, 50,        [](int sign, double increment) { stepshift(sign, increment, shiftvalues[0]); }},
    {horizdec,          horizinc,         incrementlist, incrementbtn, 50,        [](int sign, double increment) { stepshift(sign, increment, shiftvalues[1]); }},
    {rotleftbtn,        rotrightbtn,      rotincbox,     rotincbtn,    defaultrotation, nullptr},  // view/rotation has the procedures
    // clang-format on
};

double pickedincrement(const steppair& p) { return pickedincrement(p.list, p.defaultincrement); }

// Adds each increment to the tooltips of its buttons. If it was picked, also adds the caption of the button that shows
// its list.
void settooltips() {
    for (const steppair& p : pairs) {
        const bool picked = pickedincrement(p.list, 0) != 0;
        const std::string from = picked ? ", picked in \"" + p.listbutton.text + '"' : "";
        p.down.tooltipsuffix = p.up.tooltipsuffix = " by " + boxtext(pickedincrement(p)) + from;
    }
}

}  // namespace

void preparesteps() {
    for (const steppair& p : pairs) {
        p.down.repeats = p.up.repeats = true;
        p.listbutton.run = [&p] { show(p.list); };
        p.list.run = [&p] {
            hide(p.list);
            settooltips();
        };
        if (!p.step) continue;
        p.down.run = [&p] { p.step(-1, pickedincrement(p)); };
        p.up.run = [&p] { p.step(1, pickedincrement(p)); };
    }
    settooltips();
}

double pickedincrement(const control& list, double defaultincrement) {
    const double increment = Val(selectedtext(list));
    return increment == 0 ? defaultincrement : increment;
}

}  // namespace tessaly

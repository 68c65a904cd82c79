// A step changes its value, rebases the points if needed, replots and writes the value's boxes.

#include "view/stepping.h"

#include "core/viewvalues.h"
#include "render/redraw.h"

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

constexpr double magscale = 10;  // mag while displaying, divided by the number in magtxt

// Moves the focus down or up. The eye is stored relative to the focus: it moves against the focus, so that its absolute
// position is unchanged.
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
void stepperp(int sign, double increment) {
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

// Returns the number that the first five characters of a shift hold; all others are lost. If they end within the
// exponent of a large number, the digits before it count. fails: type mismatch if the shift does not begin as a number.
double frontof(const value& shift) {
    const std::string front = (shift.isnumber() ? plaindigits(shift) : shift.text()).substr(0, 5);
    if (!strictnumber(front)) static_cast<void>(static_cast<double>(shift));
    return Val(front);
}

void stepshift(int sign, double increment, const viewvalue& shift) {
    shiftinc = increment;
    shift.number = frontof(shift.number) + sign * shiftinc;
    settle();
    replot();
    writebox(shift.box, boxtext(shift.number, 5));
}

// A pair of buttons and the list that selects their step.
struct steppair {
    control &down, &up, &list, &listbutton;
    double usual;  // step without a pick: model units, units of magtxt, viewport pixels
    void (*step)(int sign, double increment);
};
const steppair pairs[] = {
    // clang-format off
    {vertfocusminusbtn, vertfocusplusbtn, incrementlist, incrementbtn, 50,        stepfocus},
    {vertperpminusbtn,  vertperpplusbtn,  incrementlist, incrementbtn, 100,       stepperp},
    {magminusbtn,       magplusbtn,       magincbox,     magincbtn,    0.001,     stepmag},
    {vertdec,           vertinc,          incrementlist, incrementbtn, 50,        [](int sign, double increment) { stepshift(sign, increment, shiftvalues[0]); }},
    {horizdec,          horizinc,         incrementlist, incrementbtn, 50,        [](int sign, double increment) { stepshift(sign, increment, shiftvalues[1]); }},
    {rotleftbtn,        rotrightbtn,      rotincbox,     rotincbtn,    usualrotation, nullptr},  // the rotation has its own procedures
    // clang-format on
};

// Writes the step and the list where it was picked into the tooltips of the buttons.
void notesteps() {
    for (const steppair& p : pairs) {
        const bool picked = pickedincrement(p.list, 0) != 0;
        const std::string from = picked ? ", picked in \"" + p.listbutton.text + '"' : "";
        p.down.tooltipsuffix = p.up.tooltipsuffix = " by " + boxtext(pickedincrement(p.list, p.usual)) + from;
    }
}

}  // namespace

void preparesteps() {
    for (const steppair& p : pairs) p.down.repeats = p.up.repeats = true;
    notesteps();
}

void clickstepbtn() {
    for (const steppair& p : pairs)
        if (usedcontrol == &p.down || usedcontrol == &p.up)
            return p.step(usedcontrol == &p.up ? 1 : -1, pickedincrement(p.list, p.usual));
}

void clicksteplistbtn() {
    const auto p = std::find_if(std::begin(pairs), std::end(pairs),
                                [](const steppair& s) { return &s.listbutton == usedcontrol; });
    show(p->list);
}

void picksteplist() {
    hide(*usedcontrol);
    notesteps();
}

double pickedincrement(const control& list, double usual) {
    const double step = Val(selectedtext(list));
    return step == 0 ? usual : step;
}

}  // namespace tessaly

// The buttons that choose what the next click on a plan builds.

#include "building/buildstate.h"

#include "core/elementtypes.h"

#include <cmath>

namespace tessaly {

namespace {

constexpr double floorheight = 128;  // layout units
constexpr int lowestfloor = 1, highestfloor = 10;

void openlayout(window& layout) {
    layout.openedby = usedcontrol;
    showwindow(layout);
}

// Returns the number if it is that of a floor, otherwise 0.
int floorof(double number) {
    const bool isfloor = number >= lowestfloor && number <= highestfloor && number == std::floor(number);
    return isfloor ? static_cast<int>(number) : 0;
}

// Return the warning for the text of a box; nullptr: no warning.
const char* floorwarning(const std::string& text) {
    return floorof(Val(text)) != 0 ? nullptr : "unknown floor, clicks build on the previous one";
}
const char* drawmodewarning(const std::string& text) {
    return text == "solid" || text == "wireframe" ? nullptr : "unknown mode, the previous one still applies";
}
const char* recordmodewarning(const std::string& text) {
    if (text == "off") return "clicks are not recorded now";
    return text == "on" ? nullptr : "unknown mode, the previous one still applies";
}

// Replaces one of two texts with the other; any third text is unchanged.
void toggle(control& box, const char* one, const char* other) {
    if (box.text == one)
        box.text = other;
    else if (box.text == other)
        box.text = one;
}

}  // namespace

void readbuildstate() {
    recordtext = writefilebox.text;
    if (recordtext.is("on")) recordmode = 1;
    if (recordtext.is("off")) recordmode = 0;
    drawtext = wiresolid.text;
    if (drawtext.is("wireframe")) drawmode = 1;
    if (drawtext.is("solid")) drawmode = 2;
    floornum = Val(floor.text);
    setfloor(floornum);
}

void setfloor(double floornumber) {
    const int number = floorof(floornumber);
    if (number == 0) return;
    floorname = std::to_string(number);
    placez = floorheight * (number - 1);
}

value nextfloorname() {
    const int number = floorof(Val(floor.text));
    return number == 0 ? floorname : value(std::to_string(number));
}

const control* nextpanelbutton() {
    for (const paneltype& t : paneltypes)
        if (panelprefix.is(t.prefix)) return t.button;
    return nullptr;
}

void setboxwarnings() {
    floor.warningof = floorwarning;
    wiresolid.warningof = drawmodewarning;
    writefilebox.warningof = recordmodewarning;
}

void clickpanelbtn() {
    for (const paneltype& t : paneltypes)
        if (t.button == usedcontrol) panelprefix = t.prefix;
    openlayout(layoutpanels);
}

void clickpostbeambtn() { openlayout(layoutgirder); }
void clickroofbtn() { openlayout(layoutroof); }

void clicksnipbtn() {
    for (const sniptype& s : sniptypes)
        if (s.button == usedcontrol) panelsnipper.text = s.text;
}

void clickfloorbtn() { show(floorlist); }

void pickfloorlist() {
    floor.text = selectedtext(floorlist);
    hide(floorlist);
}

void clickwiresolidbtn() { toggle(wiresolid, "solid", "wireframe"); }
void clickwritefilebtn() { toggle(writefilebox, "on", "off"); }

}  // namespace tessaly

// Element choice and the state of building: all of it lives in the text of four boxes, read at each click.

#include "building/choice.h"

#include "core/controls.h"
#include "core/world.h"

namespace tessaly {

namespace {

constexpr double floorheight = 128;  // layout units

void openlayout(window& layout) {
    chosenelement = usedcontrol;
    showwindow(layout);
}

void openpanels(const char* prefix) {
    panelprefix = prefix;
    openlayout(layoutpanels);
}

// Turns one of two texts into the other; any third text is left alone.
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

void setfloor(const value& level) {
    for (int number = 1; number <= 10; ++number) {
        if (level != number) continue;
        floorname = std::to_string(number);
        placez = floorheight * (number - 1);
    }
}

void clickorange1btn() { openpanels("st-panels-1or-"); }
void clickorange2btn() { openpanels("st-panels-2or-"); }
void clickorange3btn() { openpanels("st-panels-3or-"); }
void clickyellow1btn() { openpanels("st-panels-1yel-"); }
void clickyellow2btn() { openpanels("st-panels-2yel-"); }
void clickyellow3btn() { openpanels("st-panels-3yel-"); }
void clickdoor2btn() { openpanels("st-panels-2door-"); }
void clickdoor4btn() { openpanels("st-panels-4door-"); }
void clickpostbeambtn() { openlayout(layoutgirder); }
void clickroofbtn() { openlayout(layoutroof); }

void clickfloorbtn() { show(floorlist); }

void pickfloorlist() {
    floor.text = selectedtext(floorlist);
    hide(floorlist);
}

void clickwiresolidbtn() { toggle(wiresolid, "solid", "wireframe"); }
void clickwritefilebtn() { toggle(writefilebox, "on", "off"); }

void clicksnipleftbtn() { panelsnipper.text = "snip left side"; }
void clicksniprighbtn() { panelsnipper.text = "snip right side"; }
void clicksnipbothbtn() { panelsnipper.text = "snip both sides"; }

}  // namespace tessaly

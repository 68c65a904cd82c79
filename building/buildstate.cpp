// Element choice and the state of building: all of it lives in the text of four boxes, read at each click.

#include "building/buildstate.h"

#include "core/controls.h"
#include "core/world.h"

namespace tessaly {

namespace {

constexpr double floorheight = 128;  // layout units
constexpr int lowestfloor = 1, highestfloor = 10;

void openlayout(window& layout) {
    layout.openedby = usedcontrol;
    showwindow(layout);
}

// A button and the text that it chooses.
struct textchoice {
    control& button;
    const char* text;
};
const textchoice panels[] = {
    // clang-format off
    {orange1btn, "st-panels-1or-"},   {orange2btn, "st-panels-2or-"},  {orange3btn, "st-panels-3or-"},
    {yellow1btn, "st-panels-1yel-"},  {yellow2btn, "st-panels-2yel-"}, {yellow3btn, "st-panels-3yel-"},
    {door2btn,   "st-panels-2door-"}, {door4btn,   "st-panels-4door-"},
    // clang-format on
};
const textchoice snips[] = {
    {snipleftbtn, "snip left side"}, {sniprighbtn, "snip right side"}, {snipbothbtn, "snip both sides"}};

// The floor of a number, 0 for a number that is no floor's.
int floorin(double level) {
    for (int number = lowestfloor; number <= highestfloor; ++number)
        if (level == number) return number;
    return 0;
}

// What is odd about the texts of the three boxes that the layouts read; nullptr: nothing.
const char* oddfloor(const std::string& text) {
    return floorin(Val(text)) != 0 ? nullptr : "no known floor, clicks build on the one before";
}
const char* odddrawmode(const std::string& text) {
    return text == "solid" || text == "wireframe" ? nullptr : "no known mode, the one before stays in force";
}
const char* oddrecordmode(const std::string& text) {
    if (text == "off") return "clicks are not recorded now";
    return text == "on" ? nullptr : "no known mode, the one before stays in force";
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
    const int number = floorin(level);
    if (number == 0) return;
    floorname = std::to_string(number);
    placez = floorheight * (number - 1);
}

value nextfloorname() {
    const int number = floorin(Val(floor.text));
    return number == 0 ? floorname : value(std::to_string(number));
}

const control* nextpanel() {
    for (const textchoice& c : panels)
        if (panelprefix.is(c.text)) return &c.button;
    return nullptr;
}

void definechoice() {
    for (const textchoice& c : panels)
        c.button.run = [&c] {
            panelprefix = c.text;
            openlayout(layoutpanels);
        };
    postbeambtn.run = [] { openlayout(layoutgirder); };
    roofbtn.run = [] { openlayout(layoutroof); };
    floor.warningof = oddfloor;
    wiresolid.warningof = odddrawmode;
    writefilebox.warningof = oddrecordmode;
    for (const textchoice& c : snips) c.button.run = [&c] { panelsnipper.text = c.text; };
}

void clickfloorbtn() { show(floorlist); }

void pickfloorlist() {
    floor.text = selectedtext(floorlist);
    hide(floorlist);
}

void clickwiresolidbtn() { toggle(wiresolid, "solid", "wireframe"); }
void clickwritefilebtn() { toggle(writefilebox, "on", "off"); }

}  // namespace tessaly

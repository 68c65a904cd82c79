// Element choice, floor, draw mode and record mode: what the layout windows read at the moment of a click.
#pragma once

#include "core/value.h"

namespace tessaly {

struct control;

// Takes record mode, draw mode and floor from their boxes. reads: writefilebox, wiresolid, floor;
// writes: recordtext, recordmode, drawtext, drawmode, floornum, floorname, placez.
void readbuildstate();

// Sets floorname and placez for floor numbers 1..10; any other number leaves them.
void setfloor(const value& level);

// The floorname that the next click on a plan will set, by the floor box as it is now; changes nothing.
value nextfloorname();

// The button of the panel type that the next click on the panel layout places; nullptr before the first choice.
const control* nextpanel();

// Gives the ten element buttons and the three snip buttons what they do: the panel buttons set panelprefix, all ten
// open their layout window, the snip buttons set the text of panelsnipper. Lets the three boxes that readbuildstate
// reads warn of a text that it does not know, and of recording switched off.
void definechoice();

void clickfloorbtn();      // shows floorlist
void pickfloorlist();      // copies the picked floor into the floor box and hides the list
void clickwiresolidbtn();  // "solid" and "wireframe" in turn; any other text stays
void clickwritefilebtn();  // "on" and "off" in turn; any other text stays

}  // namespace tessaly

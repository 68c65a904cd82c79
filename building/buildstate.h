// The state of building, which is stored in the boxes of the main window and read at each click on a plan: panel type
// and snip, floor, draw mode, record mode.
#pragma once

#include "core/value.h"

namespace tessaly {

struct control;

// Reads record mode, draw mode and floor from their boxes. reads: writefilebox, wiresolid, floor;
// writes: recordtext, recordmode, drawtext, drawmode, floornum, floorname, placez. A text with another meaning leaves
// the mode or floor unchanged.
void readbuildstate();

// Sets floorname and placez for floor numbers 1..10; any other number leaves them unchanged.
void setfloor(const value& level);

// Returns the floorname that the next click on a plan will set, by the present text of the floor box.
value nextfloorname();

// Returns the button of the panel type that the next click on the panel layout places; nullptr before the first choice.
const control* nextpanel();

// Makes the three boxes that readbuildstate reads warn of a text without a meaning, and of recording switched off.
void setboxwarnings();

// Open a layout window. reads: usedcontrol; clickpanelbtn, which all eight panel buttons run, writes panelprefix.
void clickpanelbtn();
void clickpostbeambtn();
void clickroofbtn();

// Sets the text of panelsnipper for any of the three snip buttons. reads: usedcontrol.
void clicksnipbtn();

// Shows floorlist.
void clickfloorbtn();

// Copies the picked floor to the floor box and hides the list.
void pickfloorlist();

// Switch between "solid" and "wireframe", and between "on" and "off"; any other text in the box is unchanged.
void clickwiresolidbtn();
void clickwritefilebtn();

}  // namespace tessaly

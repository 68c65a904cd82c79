// The building state, which is stored in the text boxes of the main window and read at each click on a plan: panel type
// and snip, floor, draw mode, record mode.
#pragma once

#include "core/value.h"

namespace tessaly {

struct control;

// Reads record mode, draw mode and floor from their boxes. reads: writefilebox, wiresolid, floor;
// writes: recordtext, recordmode, drawtext, drawmode, floornum, floorname, placez. A text that names no mode or floor
// leaves that mode or floor unchanged.
void readbuildstate();

// Sets floorname and placez for floor numbers 1..10; any other number leaves them unchanged.
void setfloor(double number);

// Returns the floorname that the next click on a plan will set, according to the current text of the floor box.
value nextfloorname();

// Returns the button of the panel type that the next click on the panel layout places; nullptr before the first choice.
const control* nextpanelbutton();

// Makes each box that readbuildstate reads show a warning if its text has no meaning or switches recording off.
void setboxwarnings();

// Open a layout window. reads: usedcontrol; clickpanelbtn, which all eight panel buttons run, writes panelprefix.
void clickpanelbtn();
void clickpostbeambtn();
void clickroofbtn();

// Run by all three snip buttons: sets the text of panelsnipper. reads: usedcontrol.
void clicksnipbtn();

// Shows floorlist.
void clickfloorbtn();

// Copies the picked floor to the floor box and hides the list.
void pickfloorlist();

// Switch their boxes between "solid" and "wireframe" and between "on" and "off"; any other text stays unchanged.
void clickwiresolidbtn();
void clickwritefilebtn();

}  // namespace tessaly

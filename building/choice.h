// Element choice, floor, draw mode and record mode: what the layout windows read at the moment of a click.
#pragma once

#include "core/value.h"

namespace tessaly {

// Takes record mode, draw mode and floor from their boxes. reads: writefilebox, wiresolid, floor;
// writes: recordtext, recordmode, drawtext, drawmode, floornum, floorname, placez.
void readbuildstate();

// Sets floorname and placez for floor numbers 1..10; any other number leaves them.
void setfloor(const value& level);

// The ten element buttons: the panel buttons set panelprefix, all open their layout window.
void clickorange1btn();
void clickorange2btn();
void clickorange3btn();
void clickyellow1btn();
void clickyellow2btn();
void clickyellow3btn();
void clickdoor2btn();
void clickdoor4btn();
void clickpostbeambtn();
void clickroofbtn();

void clickfloorbtn();      // shows floorlist
void pickfloorlist();      // copies the picked floor into the floor box and hides the list
void clickwiresolidbtn();  // "solid" and "wireframe" in turn; any other text stays
void clickwritefilebtn();  // "on" and "off" in turn; any other text stays

// The three snip buttons of the panel layout set the text of panelsnipper.
void clicksnipleftbtn();
void clicksniprighbtn();
void clicksnipbothbtn();

}  // namespace tessaly

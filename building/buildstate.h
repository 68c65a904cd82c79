// The building state: panel type, snip, floor, draw mode and record mode. It determines what a click on a plan does,
// and is stored in text boxes, except for the panel type.
#pragma once

#include "core/value.h"

namespace tessaly {

struct control;

// Reads record mode, draw mode and floor from their boxes. If the text of a box is not a mode or floor, the mode or
// floor is unchanged. reads: writefilebox, wiresolid, floor; writes: recordtext, recordmode, drawtext, drawmode,
// floornum, floorname, placez.
void readbuildstate();

// Sets floorname and placez for a floor number 1..10. For any other number they are unchanged.
void setfloor(double floornumber);

// Returns the floorname that the next click on a plan will use, according to the floor box.
value nextfloorname();

// Returns the button of the panel type that the next click on the panel layout places, nullptr before the first choice.
const control* nextpanelbutton();

// Makes the boxes that readbuildstate reads show a warning for an unknown text. writefilebox also shows one if
// recording is off.
void setboxwarnings();

// Open a layout window. clickpanelbtn, which all eight panel buttons run, also sets panelprefix. reads: usedcontrol.
void clickpanelbtn();
void clickpostbeambtn();
void clickroofbtn();

// Sets the text of panelsnipper; all three snip buttons run it. reads: usedcontrol.
void clicksnipbtn();

// Shows floorlist.
void clickfloorbtn();

// Copies the picked floor to the floor box and hides the list.
void pickfloorlist();

// Switch wiresolid between "solid" and "wireframe", and writefilebox between "on" and "off". Any other text is
// unchanged.
void clickwiresolidbtn();
void clickwritefilebtn();

}  // namespace tessaly

// Manual entry of the view: SET applies all nine boxes at once, Default view restores fixed values, and two buttons
// hide and show seven of the boxes. Typing in a box changes nothing until SET.
#pragma once

namespace tessaly {

// SET: restores the placed points, reads the nine boxes into the view state, draws, and writes the boxes back, cut.
// reads: the nine boxes, shown or hidden; writes: view state, the boxes and their copies on easyviews; draws on
// viewport; fails: type mismatch if a box does not hold a number, and as projectdraw.
void clickcventerbtn();

// Default view: sets the view state and rotstage to their start values, hides both arrows and draws. writes: view
// state, rotstage, the nine boxes and their copies; draws on viewport; fails: as projectdraw.
void clickdefaultviewbtn();

// Hide and show the seven boxes of eye, focus and magnification. Neither changes a value.
void clickhidpfm();
void clickshopfm();

// Draws a view whose eye was just set relative to the focus, from the current working points, and writes the nine
// boxes. Default view and the start of the rotation share it. reads: perpx.. focusx.. mag, shifts; writes: perprelx..
// perpabsx.. perpsumx.. and as projectdraw; fails: as projectdraw.
void drawrelativeview();

}  // namespace tessaly

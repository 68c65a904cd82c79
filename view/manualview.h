// Manual entry of the view: SET applies all nine boxes at once, Default view sets fixed values, and two buttons hide
// and show seven of the boxes. Typing in a box changes nothing until SET.
#pragma once

namespace tessaly {

// SET: restores the points as placed, reads the nine boxes into the view state, draws, and writes the numbers back to
// the boxes, cut to a few characters.
// reads: the nine boxes, shown or hidden; writes: view state, the boxes and their copies on easyviews; draws on
// viewport; fails: type mismatch if a box does not hold a number, and as projectdraw.
void clickcventerbtn();

// Default view: sets the view state and rotstage to their start values, hides both arrows and draws. writes: view
// state, rotstage, the nine boxes and their copies; draws on viewport; fails: as projectdraw.
void clickdefaultviewbtn();

// Hide and show the seven boxes of eye, focus and magnification. Neither changes a value.
void clickhidpfm();
void clickshopfm();

// Draws the view after Default view or the start of the rotation has set the eye relative to the focus, and writes the
// nine boxes. reads: perpx.., focusx.., mag, vertshift, horizshift; writes: perprelx.., perpabsx..,
// perpsumx.. and as projectdraw; fails: as projectdraw.
void drawrelativeview();

}  // namespace tessaly

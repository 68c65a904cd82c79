// The manual view: SET applies the numbers in the nine boxes, Default view sets fixed values, and two buttons hide and
// show seven of the boxes. A number typed in a box changes nothing before SET.
#pragma once

namespace tessaly {

// SET: resets the working points to their base coordinates, reads the nine boxes into the view state, draws, and writes
// the numbers back to the boxes, each cut to a few characters.
// reads: the nine boxes, shown or hidden; writes: view state, the boxes and their copies on easyviews; draws on
// viewport; fails: type mismatch if a box does not hold a number, and as projectdraw.
void clickcventerbtn();

// Default view: sets the view state and rotstage to their start values, hides both rotation arrows and draws. writes:
// view state, rotstage, the nine boxes and their copies; draws on viewport; fails: as projectdraw.
void clickdefaultviewbtn();

// Hide and show the seven boxes of eye, focus and magnification. Neither changes a value.
void clickhidpfm();
void clickshopfm();

// Draws the view and writes the nine boxes. Default view and the start of the rotation call it after they have set the
// eye relative to the focus. reads: perpx.., focusx.., mag, vertshift, horizshift; writes: perprelx.., perpabsx..,
// perpsumx.. and as projectdraw; fails: as projectdraw.
void drawrelativeview();

}  // namespace tessaly

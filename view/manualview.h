// Manual entry of the view: SET takes all nine boxes at once, Default view puts fixed figures in, and two buttons hide
// and show seven of the boxes. Typing in a box changes nothing until SET.
#pragma once

namespace tessaly {

// SET: starts over from the placed points, takes the nine boxes as they stand, draws, writes the boxes back cut.
// reads: the nine boxes, shown or not; writes: view state, the boxes and their copies on easyviews; draws on viewport;
// fails: type mismatch for a box that holds no number, and as projectdraw.
void clickcventerbtn();

// Default view: writes view state, rotstage, the boxes and their copies; hides both arrows; fails: as projectdraw.
void clickdefaultviewbtn();

// Hide and show the seven boxes of eye, focus and magnification.
void clickhidpfm();
void clickshopfm();

// Puts a view just set into force whose eye counts from the focus: draws it, the working points going on from where
// they are, and writes the nine boxes. Shared by Default view and the activation of the rotation.
// reads: perpx.. focusx.. mag, shifts; writes: perprelx.. perpabsx.. perpsumx.. and as projectdraw; fails: likewise.
void drawrelativeview();

}  // namespace tessaly

// The rotation controls: two arrows that walk the eye around the focus along the four sides of a square, a step a
// click, and two small buttons that switch the direction. No angle anywhere: rotstage says which side the walk is on.
// The square's limits are absolute model units and are held against the figures in the boxes, cut as they stand there.
#pragma once

namespace tessaly {

constexpr double usualwalk = 100;  // model units: a step of an arrow without a pick

// Puts the rotation view into force (the height in its box now counts from the focus) and brings the left arrow.
// reads: perptxtz, magtxt, verttxt, horiztxt; writes: view state, rotstage, the nine boxes; fails: type mismatch for a
// box that holds no number, and as projectdraw.
void clickactivateleftbtn();

// One step of the walk, two where a side's limit is met on the way. reads: rotincbox, perptxtx, perptxty, rotstage;
// writes: perpx or perpy, rotstage, rotboxx, rotboxy, the three eye boxes; fails: as replot.
void clickrotleftbtn();
void clickrotrightbtn();

// Switch the direction: set rotstage by the side on which the last step of an arrow saw the eye; nothing is drawn.
// reads: rotboxx, rotboxy.
void clickactivaterightbtn();
void clickreactivateleftbtn();

}  // namespace tessaly

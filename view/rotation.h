// The rotation controls: two arrows that move the eye along the four sides of a square around the plan, one step per
// click, and two small buttons that switch the direction. There are no angles: rotstage is the current side. The limits
// of the square are absolute model units. They are compared with the numbers in the boxes, which are cut to a few
// characters.
#pragma once

namespace tessaly {

// Sets the view in which the rotation starts, and shows the left arrow. The absolute number in the eye Z box becomes
// the eye Z relative to the focus. reads: perptxtz, magtxt, verttxt, horiztxt; writes: view state, rotstage, the nine
// boxes; draws on viewport; fails: type mismatch if a box does not hold a number, and as projectdraw.
void clickactivateleftbtn();

// Move the eye by one step, or by two if the first step reaches the limit of a side. reads: rotincbox, perptxtx,
// perptxty, rotstage; writes: perpx or perpy, rotstage, rotboxx, rotboxy, the three eye boxes; draws on viewport;
// fails: as replot.
void clickrotleftbtn();
void clickrotrightbtn();

// Switch the direction: set rotstage from the position of the eye after the last step of an arrow, and show the other
// arrow. Nothing is drawn. reads: rotboxx, rotboxy.
void clickactivaterightbtn();
void clickreactivateleftbtn();

}  // namespace tessaly

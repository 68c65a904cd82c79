// The stepping controls: five pairs of small buttons, each nudging one view value by the step picked in its list. No
// value has a bound.
#pragma once

namespace tessaly {

// The point looked at down or up, the eye staying where it is in the world.
// reads: incrementlist; writes: focusz, perpz, perprelz, the boxes of eye, focus and magnification, efocuszbox;
// fails: as replot.
void clickvertfocusminusbtn();
void clickvertfocusplusbtn();

// The eye down or up. reads: incrementlist; writes: perpz, perprelz, the same boxes, eperpzbox; fails: as replot.
void clickvertperpminusbtn();
void clickvertperpplusbtn();

// The magnification, by steps of its box. reads: magincbox; writes: mag, magshown, magtxt; fails: as replot.
void clickmagminusbtn();
void clickmagplusbtn();

// The display shifts. reads: incrementlist; writes: vertshift and verttxt, or horizshift and horiztxt;
// fails: type mismatch where the shift is no number, and as replot.
void clickvertinc();
void clickvertdec();
void clickhorizinc();
void clickhorizdec();

// Show a list of steps; hide it again with the pick in force.
void clickincrementbtn();
void pickincrementlist();
void clickmagincbtn();
void pickmagincbox();

}  // namespace tessaly

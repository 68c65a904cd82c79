// The start-up display: the default view, the background and the three start groups. Afterwards
// the tables hold the last group, the layout grid.
#pragma once

namespace tessaly {

// Reads "datah\start.txt", clears the picture and draws the start groups. If startdone is 1, only draws the groups,
// over the existing picture. writes: view state, viewpreset, palette, background, the world tables; draws on viewport;
// fails: as readelements.
void startdisplay();

}  // namespace tessaly

// The start-up display: the default view, the background and the three start groups, of which the last, the layout
// grid, stays in the tables.
#pragma once

namespace tessaly {

// Reads "datah\start.txt" and shows the start groups; with startdone 1 only the groups, over what is on the screen.
// writes: view state, viewpreset, palette, background, the world tables; draws on viewport; fails as readelements.
void startdisplay();

}  // namespace tessaly

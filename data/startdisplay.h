// The start-up display: the default view, the background and the three start groups. The last group, the layout grid,
// stays in the tables.
#pragma once

namespace tessaly {

// Reads "datah\start.txt", clears the picture and shows the start groups. If startdone is 1, only shows the groups,
// over the picture. writes: view state, viewpreset, palette, background, the world tables; draws on viewport; fails: as
// readelements.
void startdisplay();

}  // namespace tessaly

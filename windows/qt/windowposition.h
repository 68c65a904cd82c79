// Where a window stands at its first showing, no larger than the screen.
#pragma once

#include "windows/qt/windowframe.h"

namespace tessaly {

// In the middle of the screen.
void openincentre(windowframe& f);

// Over the whole screen; no larger than it also where no desktop does that.
void openmaximised(windowframe& f);

// At the right of the main window's picture or, where the screen ends before, over it; in front of the main window from
// then on, whichever of the two the user works in.
void openbesidemain(windowframe& f);

}  // namespace tessaly

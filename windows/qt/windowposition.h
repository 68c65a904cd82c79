// Where a window stands at its first showing, no larger than the screen.
#pragma once

#include "windows/qt/windowframe.h"

namespace tessaly {

// In the middle of the screen.
void openincentre(windowframe& f);

// Beside the main window, where it hides the least of what it is used with, and in front of it from then on, whichever
// of the two the user works in.
void openbesidemain(windowframe& f);

}  // namespace tessaly

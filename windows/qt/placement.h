// Where a window stands at its first showing, no larger than the screen.
#pragma once

#include "windows/qt/face.h"

namespace tessaly {

// In the middle of the screen.
void openincentre(face& f);

// Beside the main window, where it hides the least of what it is used with, and in front of it from then on, whichever
// of the two the user works in.
void openbesidemain(face& f);

}  // namespace tessaly

// Sets the size and position of a window before it is first shown, no larger than the screen.
#pragma once

#include "windows/qt/windowframe.h"

namespace tessaly {

// Centres a window on the screen.
void openincentre(windowframe& f);

// Maximises a window. Without a window manager it is as large as its content, at most as the screen.
void openmaximised(windowframe& f);

// Opens a window at the right of the main window's picture, or over the picture if the screen ends before. It stays in
// front of the main window, even while the user works in that.
void openbesidemain(windowframe& f);

}  // namespace tessaly

// The size and position with which a window is first shown. It is never larger than the screen.
#pragma once

#include "windows/qt/windowframe.h"

namespace tessaly {

// Centres a window on the screen.
void opencentred(windowframe& f);

// Maximises a window. Without a window manager it is as large as its content, but at most as large as the screen.
void openmaximised(windowframe& f);

// Moves a window to the right of the main window's picture, or over the picture on a small screen. The window stays in
// front of the main window, even while the main window is active.
void openbesidemain(windowframe& f);

}  // namespace tessaly

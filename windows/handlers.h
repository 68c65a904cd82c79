// Starts the program, connects every control to its procedure, and closes windows. Uses no Qt: the windows and the
// player run the same procedures on the same controls.
#pragma once

#include "core/controls.h"

#include <span>

namespace tessaly {

// Resets the program to its initial state: all controls have their procedures, startform is shown, no file has been
// read. The caller must have set viewportsurface and progresssurface.
void startprogram();

// A key that acts in any window once the main window has been opened.
struct programkey {
    const char* name;
    void (*press)();
};
std::span<const programkey> programkeys();

// Handles the Escape key in window w. focused is the control with the keyboard focus, nullptr if there is none. Clicks
// the closing button to which focused belongs, otherwise the first closing button shown in w. Hides a layout window, as
// it has no closing button. If focused is a list that only a pick closes, the list stays open, and the focus moves to
// the control that opened it.
void pressescape(window& w, const control* focused);

// Closes a window for the user: startform and vistaplan end the program as exitbtn does, any other window is hidden.
void closewindow(window& w);

}  // namespace tessaly

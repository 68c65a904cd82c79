// The life of the program: its start, which gives every control its procedure, and the closing of its windows. No Qt
// here: the windows and the player drive the same procedures over the same controls.
#pragma once

#include "core/controls.h"

#include <span>

namespace tessaly {

// Puts the whole program into its first state: all controls set up with their procedures, startform shown, nothing
// loaded. viewportsurface and progresssurface are to be set before.
void startprogram();

// The keys that act from any window once the main window is there, and their procedures.
struct programkey {
    const char* name;
    void (*press)();
};
std::span<const programkey> programkeys();

// The Escape key in a window, with the focus on focused (nullptr: on no control). It does what the window's own closing
// button does: of those of the main window the one that belongs to focused, or else the first that is shown. A list
// that only a pick closes gives the focus back and stays.
void pressescape(window& w, const control* focused);

// The user closes a window: the two programs windows end the program as exitbtn does, any other is hidden.
void closewindow(window& w);

}  // namespace tessaly

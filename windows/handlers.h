// What a user's action means: the one table from a control's name to its procedure, and the life of the program. No Qt
// here: the windows and tools/play drive the same procedures over the same controls.
#pragma once

#include "core/controls.h"

#include <string_view>

namespace tessaly {

// Puts the whole program into its first state: all controls set up, startform shown, nothing loaded.
// viewportsurface and progresssurface are to be set before.
void startprogram();

// A click on a button. reads: the control's name; fails: as its procedure does.
void clickcontrol(control& c);

// A click on an item of a list, file list or combination box: selects it and runs the list's procedure.
void pickitem(control& c, int item);

// The user's text in a text box or combination box.
void typetext(control& c, std::string_view text);

// The Escape key in a window, with the focus on focused (nullptr: on no control). It does what the window's own closing
// button does: of those of the main window the one that belongs to focused, or else the first that is shown. A list
// that only a pick closes gives the focus back and stays.
void pressescape(window& w, const control* focused);

// The user closes a window: the two programs windows end the program as exitbtn does, any other is hidden.
void closewindow(window& w);

}  // namespace tessaly

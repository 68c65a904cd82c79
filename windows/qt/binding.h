// Connects the controls' state with their widgets. A window's widgets are created from its table of controls when it is
// first shown; each widget's objectName is its control's name. For each user event, typed text is copied to the state,
// then the event's procedure runs, then all changes of the state are copied to the widgets.
#pragma once

#include "windows/qt/windowframe.h"

#include <functional>

namespace tessaly {

// Sets the drawing surfaces, starts the program and shows its first window.
void openwindows();

// Destroys all windows.
void destroywindows();

// Runs one user event. Shows the report of a failure and ends the program with status 1; ends it with status 0 after
// exitbtn. Does nothing while another event runs or the program is ending.
void runevent(const std::function<void()>& procedure);

// Returns the control that has the keyboard focus in a window, or gets it when the window becomes active; nullptr if
// there is none.
const control* focusedcontrol(const window& w);

// Return the widget of a control or a window; nullptr if the window was never shown.
QWidget* widgetof(const control& c);
windowframe* frameof(const window& w);

}  // namespace tessaly

// Widgets follow the controls' state. Every window's widgets are built from its table of controls when it is first
// shown; each widget's objectName is its control's name. Before an event what the user typed goes to the state, then
// the event's procedure runs, then everything that changed in the state goes to the widgets.
#pragma once

#include "windows/qt/windowframe.h"

#include <functional>

namespace tessaly {

// Sets the drawing surfaces and starts the program: its first window comes to the screen. dress is called for each
// window that has been made, with its controls on the plan.
void openwindows(void (*decorate)(windowframe&));

// Takes all windows off the screen and forgets them.
void dropwindows();

// Runs one event of the user to its end. A failure is shown and ends the program with status 1; after exitbtn it ends
// with status 0; once it is ending, further events do nothing.
void runevent(const std::function<void()>& procedure);

// The control of the widget that holds or would hold a window's focus, nullptr where none does.
const control* focusedcontrol(const window& w);

// The widget of a control or a window, nullptr as long as its window was never shown.
QWidget* widgetof(const control& c);
windowframe* frameof(const window& w);

}  // namespace tessaly

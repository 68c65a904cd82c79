// What assistive technology is told beyond what the toolkit tells by itself: the role of a window, of a picture and of
// a frame, and a combination box by its name.
#pragma once

#include <QAccessible>

class QWidget;

namespace tessaly {

// Gives a widget a role, before anything asks for it; its name is its spoken name, or a window's title.
void setrole(QWidget& widget, QAccessible::Role role);

// To be called once there is an application, before its first window.
void usespokenroles();

}  // namespace tessaly

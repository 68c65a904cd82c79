// Corrects what Qt reports to assistive technology: the roles of windows, pictures and frames, and the name of a
// combination box.
#pragma once

#include <QAccessible>

class QWidget;

namespace tessaly {

// Sets the role of a widget. Call it before assistive technology first queries the widget.
void setrole(QWidget& widget, QAccessible::Role role);

// Installs the roles and names. Call it after the QApplication was created and before its first window.
void installaccessibility();

}  // namespace tessaly

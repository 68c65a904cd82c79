// Creates the widget of a control, and writes its text, items and selection.
#pragma once

#include "core/controls.h"

#include <QWidget>

class QLineEdit;

namespace tessaly {

// Creates the widget of a control with its bounds and names, hidden and empty. A list emits clicked for each picked
// row.
QWidget* makewidget(const control& c, QWidget* content);

// Returns the line in which the user can type a widget's text, nullptr if there is none.
QLineEdit* typedline(QWidget& widget);

// Sets a caption, or the text of a box or page; UTF-8.
void settext(QWidget& widget, const std::string& text);

// Set the tooltip, which is also the accessible description, and the tint of a box.
void settooltip(QWidget& widget, const std::string& text);
void settint(QWidget& widget, boxtint tint);

void setitems(QWidget& widget, const std::vector<std::string>& items);
// Selects the picked row of a list and the row of a combination box that equals its text, and draws a button as pressed
// if it is chosen or a window that it opened is shown.
void setselection(const control& c, QWidget& widget);

}  // namespace tessaly

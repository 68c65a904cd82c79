// Creates the widget of a control, and reads and writes its text, items and selection.
#pragma once

#include "core/controls.h"

#include <QWidget>

namespace tessaly {

// Creates the widget of a control with its bounds and names, hidden and empty. A list emits clicked for each picked
// row.
QWidget* makewidget(const control& c, QWidget* plan);

// Returns the layer of a control, from back to front: picture boxes, frames, labels, buttons, boxes and lists and
// pages, the progress strip.
int layerof(const control& c);

// Returns whether a control is raised above its neighbours when it is shown: lists can open over each other.
bool raisedwhenshown(const control& c);

// Returns whether the user can type into a control.
bool takestyping(const control& c);

// Return the text in a box, and set a caption or the text of a box; UTF-8.
std::string typedtext(const QWidget& widget);
void settext(QWidget& widget, const std::string& text);

// Set the tooltip, which is also the accessible description, and the tint of a box.
void settooltip(QWidget& widget, const std::string& text);
void settint(QWidget& widget, boxtint tint);

void setitems(QWidget& widget, const std::vector<std::string>& items);
// Selects the picked row of a list and the row of a combination box that equals its text, and draws a button as pressed
// if it is chosen or a window that it opened is shown.
void setselection(const control& c, QWidget& widget);

}  // namespace tessaly

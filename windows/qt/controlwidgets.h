// A control's widget: how each kind of control is made, and how its text, items and selection are read and written.
#pragma once

#include "core/controls.h"

#include <QWidget>

namespace tessaly {

// Makes the widget at its control's place, with its names. It is hidden and empty until its control's state is carried
// to it. A list says clicked of each row that is picked.
QWidget* makewidget(const control& c, QWidget* plan);

// In front of each other stand, from the back: pictures and frames, labels, buttons, what is typed in or picked from,
// the progress strip.
int layerof(const control& c);

// Whether it comes in front of its neighbours when it is shown: lists that are opened over each other.
bool comestofront(const control& c);

// Whether the user can type into it.
bool typable(const control& c);

// The text that stands in a box, and the setting of a caption's or box's text; UTF-8.
std::string typedtext(const QWidget& widget);
void settext(QWidget& widget, const std::string& text);

// The tooltip, which assistive technology reads as the description, and the tint of a box.
void settooltip(QWidget& widget, const std::string& text);
void settint(QWidget& widget, boxtint tint);

void setitems(QWidget& widget, const std::vector<std::string>& items);
// What is marked: the picked row of a list, the row of a combination box that is its text, the element button chosen
// last.
void setselection(const control& c, QWidget& widget);

}  // namespace tessaly

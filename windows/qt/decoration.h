// What each window has of its own, once its controls stand on the plan: its decoration, its keys, its first showing.
#pragma once

#include "windows/qt/windowframe.h"

namespace tessaly {

// Dresses a window by the table of those that have something of their own.
void decoratewindow(windowframe& f);

// A file each.
void decoratestartform(windowframe& f);
void decoratevistaplan(windowframe& f);
void decoratelayoutgirder(windowframe& f);
void decoratelayoutpanels(windowframe& f);
void decoratelayoutroof(windowframe& f);
void decorateeasyviews(windowframe& f);

}  // namespace tessaly

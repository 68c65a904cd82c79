// Sets up what is special about each window after its widgets were created: its decoration, keys and first position.
#pragma once

#include "windows/qt/windowframe.h"

namespace tessaly {

// Sets up any window.
void decoratewindow(windowframe& f);

// Set up one window each. The three layout windows are in layoutplans.cpp, the others in the file of their name.
void decoratestartform(windowframe& f);
void decoratevistaplan(windowframe& f);
void decoratelayoutgirder(windowframe& f);
void decoratelayoutpanels(windowframe& f);
void decoratelayoutroof(windowframe& f);
void decorateeasyviews(windowframe& f);

}  // namespace tessaly

// Sets up what is special about each window after its widgets were created: its background, its keys and its position.
#pragma once

#include "windows/qt/windowframe.h"

namespace tessaly {

// Sets up any window.
void decoratewindow(windowframe& f);

// Set up one window, or one of the three layout windows.
void decoratestartform(windowframe& f);
void decoratevistaplan(windowframe& f);
void decoratelayout(windowframe& f);
void decorateeasyviews(windowframe& f);

}  // namespace tessaly

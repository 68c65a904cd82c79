// The instructions window: showing its pages, opening and closing it.
#pragma once

#include "core/controls.h"

#include <initializer_list>

namespace tessaly {

// Shows these pages, hides the other pages and the start picture, and marks the clicked button as chosen.
// reads: usedcontrol.
void showpages(std::initializer_list<control*> pages);

// Opens the window with its start picture.
void clickinstructionsbtn();

// Hides the window.
void clickreturntomainbtn();

}  // namespace tessaly

// Quick view change: the easyviews window with its 30 buttons, each for a fixed X and Y, or a fixed Z, of the eye or
// the focus. A click only writes numbers into boxes: the view changes at SET.
#pragma once

#include <span>

namespace tessaly {

// The view values that a button writes: X and Y, or Z, of the eye or the focus.
enum quickviewkind { eyexy, eyeheight, focusxy, focusheight };

struct quickview {
    const char* name;  // of the button
    quickviewkind kind;
    int numbers[2];  // model units, absolute: X and Y, or Z
    int left, top;   // twips on easyviews
};

std::span<const quickview> allquickviews();

// Copies the boxes of the main window to easyviews and shows it.
void clickfastchange();

// Hides easyviews. The view is unchanged.
void clickeasysetbtn();

// Adds the 30 buttons to easyviews. A click on one writes its numbers to its boxes on easyviews and copies those boxes
// to the main window.
void addquickviewbuttons();

}  // namespace tessaly

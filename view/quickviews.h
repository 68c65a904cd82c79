// Quick view change: the easyviews window with its 30 place buttons, each standing for a fixed place or height of the
// eye or the focus. A click writes figures into boxes and nothing else: the view changes at SET.
#pragma once

#include "core/controls.h"

namespace tessaly {

// Opens easyviews with the figures of the main window's boxes.
void clickfastchange();

// Hides easyviews; nothing is applied.
void clickeasysetbtn();

// What a place button stands for.
enum class placekind { eyeplace, eyeheight, focusplace, focusheight };

struct quickview {
    const char* name;  // of the button
    placekind kind;
    int figures[2];  // model units, absolute: X and Y, or Z
    int left, top;   // twips on easyviews
};

// Adds the 30 buttons to easyviews.
void definequickviews();

// The place behind a button of easyviews, nullptr for any other control.
const quickview* quickviewof(const control& c);

// A click on a place: writes its figures to its boxes on easyviews, then copies those to the main window.
void clickquickview(const quickview& q);

}  // namespace tessaly

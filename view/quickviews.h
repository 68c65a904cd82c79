// Quick view change: the easyviews window with its 30 buttons, each for a fixed X and Y, or a fixed Z, of the eye or
// the focus. A click only writes numbers into boxes: the view changes at SET.
#pragma once

#include "core/viewvalues.h"

#include <span>

namespace tessaly {

// What the buttons of a kind share.
struct quickviewkind {
    viewvaluespan values;  // those that a click writes
    colour background;
    const char* accessiblename;
};
inline constexpr quickviewkind eyexy{eyevalues.first(2), {192, 255, 192}, "Eye"};
inline constexpr quickviewkind eyeheight{eyevalues.last(1), {255, 192, 255}, "Eye"};
inline constexpr quickviewkind focusxy{focusvalues.first(2), {128, 128, 255}, "Focus"};
inline constexpr quickviewkind focusheight{focusvalues.last(1), {255, 0, 0}, "Focus"};

struct quickview {
    const char* name;  // of the button
    const quickviewkind& kind;
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

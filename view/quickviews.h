// Quick view change: the easyviews window with 30 buttons. Each button has a fixed X and Y, or a fixed Z, of the
// eye or the focus. A click only writes numbers into boxes; SET changes the view.
#pragma once

#include "core/viewvalues.h"

#include <span>

namespace tessaly {

// The properties shared by the buttons for the same view values.
struct quickviewkind {
    viewvaluespan values;  // X and Y, or Z, of the eye or the focus
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
    int numbers[2];  // the values: model units, absolute
    int left, top;   // twips on easyviews
};

std::span<const quickview> allquickviews();

// Copies the boxes of the main window to easyviews and shows it.
void clickfastchange();

// Hides easyviews. The view is unchanged.
void clickeasysetbtn();

// Adds the 30 buttons to easyviews. A click on a button writes its numbers to the boxes of their values, on easyviews
// and on the main window.
void addquickviewbuttons();

}  // namespace tessaly

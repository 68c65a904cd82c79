// The nine figures of a view, in the one order of SET, captures and the start file, each with its box on the main
// window and its copy on easyviews. Who writes boxes has its own cuts and its own choice of them; neither is a slip.
#pragma once

#include "core/controls.h"
#include "core/world.h"

#include <span>

namespace tessaly {

struct viewvalue {
    value& figure;
    control& box;
    control* copy;     // on easyviews; nullptr: there is none
    const char* word;  // for reports
    const char* tag;   // in the box, where no label stands beside it
};
inline constexpr viewvalue viewvalues[] = {
    // clang-format off
    {perpx,      perptxtx,  &eperpxbox,  "eye X",            "persp X"},
    {perpy,      perptxty,  &eperpybox,  "eye Y",            "persp Y"},
    {perpz,      perptxtz,  &eperpzbox,  "eye Z",            "persp Z"},
    {focusx,     focustxtx, &efocusxbox, "focus X",          "focus X"},
    {focusy,     focustxty, &efocusybox, "focus Y",          "focus Y"},
    {focusz,     focustxtz, &efocuszbox, "focus Z",          "focus Z"},
    {mag,        magtxt,    nullptr,     "magnification",    "mag"},
    {vertshift,  verttxt,   nullptr,     "vertical shift",   nullptr},
    {horizshift, horiztxt,  nullptr,     "horizontal shift", nullptr},
    // clang-format on
};
using viewvaluespan = std::span<const viewvalue>;
inline constexpr viewvaluespan eyevalues = viewvaluespan(viewvalues).first(3);
inline constexpr viewvaluespan focusvalues = viewvaluespan(viewvalues).subspan(3, 3);
inline constexpr viewvaluespan shiftvalues = viewvaluespan(viewvalues).last(2);
inline constexpr viewvaluespan taggedvalues = viewvaluespan(viewvalues).first(7);  // over the picture

// Write boxes, each figure cut to its first n characters: the eye's from x, y, z, since perpx.. may be relative to the
// focus; others from their own figures.
void writeeyeboxes(const value& x, const value& y, const value& z, std::size_t n);
void writeboxes(viewvaluespan figures, std::size_t n);

// Copies a box's text to its copy on easyviews, which is created, not shown, where it does not exist yet.
void copytoeasyviews(const viewvalue& f);

// Copies the six boxes of focus and eye to easyviews.
void copyboxestoeasyviews();

}  // namespace tessaly

// The nine values of a view, each with its box on the main window, and the one procedure that writes the boxes. Boxes
// hold texts: numbers are cut to a few characters when they are written, and SET reads back what is left of them.
#pragma once

#include "core/controls.h"
#include "core/world.h"

#include <span>

namespace tessaly {

struct viewvalue {
    value& variable;
    control& box;
    control* easyviewsbox;  // its copy on easyviews; nullptr if it has none
    const char* name;       // for reports
    const char* tag;        // shown in the box; nullptr if a label is beside it
};
// In the order of SET, of view records and of the start file.
inline constexpr viewvalue viewvalues[] = {
    // clang-format off
    {perpx,      perptxtx,  &eperpxbox,  "eye X",            "perp X"},
    {perpy,      perptxty,  &eperpybox,  "eye Y",            "perp Y"},
    {perpz,      perptxtz,  &eperpzbox,  "eye Z",            "perp Z"},
    {focusx,     focustxtx, &efocusxbox, "focus X",          "foc X"},
    {focusy,     focustxty, &efocusybox, "focus Y",          "foc Y"},
    {focusz,     focustxtz, &efocuszbox, "focus Z",          "foc Z"},
    {mag,        magtxt,    nullptr,     "magnification",    "mag"},
    {vertshift,  verttxt,   nullptr,     "vertical shift",   nullptr},
    {horizshift, horiztxt,  nullptr,     "horizontal shift", nullptr},
    // clang-format on
};
using viewvaluespan = std::span<const viewvalue>;
inline constexpr viewvaluespan eyevalues = viewvaluespan(viewvalues).first(3);
inline constexpr viewvaluespan focusvalues = viewvaluespan(viewvalues).subspan(3, 3);
inline constexpr const viewvalue& magvalue = viewvalues[6];
inline constexpr viewvaluespan shiftvalues = viewvaluespan(viewvalues).last(2);
inline constexpr viewvaluespan taggedvalues = viewvaluespan(viewvalues).first(7);  // boxes in front of the picture

// Sets a view value to the text of its box. It stays a text until arithmetic converts it; a failure then names the box.
void readbox(const viewvalue& v);

// The sources of the absolute eye for the boxes: perpabsx.., which the projector computes, or perpsumx.., which
// writeviewboxes computes.
inline constexpr const value* absoluteeye[] = {&perpabsx, &perpabsy, &perpabsz};
inline constexpr const value* summedeye[] = {&perpsumx, &perpsumy, &perpsumz};

// The number of characters to which each number is cut; 0 if these boxes are not written. The differences are intended:
// SET with a shift of -1270 leaves "-127" in its box, and the next SET reads that.
struct boxcuts {
    const value* const* eyesource;
    std::size_t eye, focus, mag, shifts;
};
// clang-format off
inline constexpr std::size_t uncut = std::string::npos;
inline constexpr boxcuts
//  written after        eye          eye    focus  mag    shifts
    projectioncuts     { absoluteeye, uncut, uncut, uncut, 5 },
    setcuts            { absoluteeye, 5,     5,     5,     4 },
    retrievalcuts      { absoluteeye, 9,     9,     9,     9 },
    relativeviewcuts   { summedeye,   5,     5,     6,     5 },  // Default view, start of the rotation
    eyestepcuts        { summedeye,   5,     5,     6,     0 },  // steps of the focus too
    rotationcuts       { summedeye,   5,     0,     0,     0 },
    magstepcuts        { summedeye,   0,     0,     6,     0 };
// clang-format on

// Writes the nine boxes with these cuts; magtxt gets shownmag. writes: perpsumx.. if eyesource is summedeye; fails:
// type mismatch.
void writeviewboxes(const boxcuts& cuts, const value& shownmag = magshown);

// Copies the text of a box to its copy on easyviews.
void copytoeasyviews(const viewvalue& v);

// Copies the six boxes of eye and focus to easyviews.
void copyboxestoeasyviews();

}  // namespace tessaly

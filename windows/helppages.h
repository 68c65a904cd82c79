// The words of the instructions window: its text pages, and which of the five picture buttons shows which of them.
// The pages are laid out by blanks and ruled lines for a fixed-pitch font; plain ASCII, '\n' between lines.
#pragma once

#include "core/controls.h"

namespace tessaly {

struct helppage {
    control* on;
    int columns;  // characters that fit a line: half a window for a page that has a neighbour, else the whole
    const char* text;
};
constexpr int helppagecount = 8;
constexpr int helplines = 40;  // lines that fit a page
extern const helppage helppages[helppagecount];

// What a picture button shows; secondpage is nullptr where one page fills the window.
struct helpregion {
    control* button;
    control* firstpage;
    control* secondpage;
};
constexpr int helpregioncount = 5;
extern const helpregion helpregions[helpregioncount];

}  // namespace tessaly

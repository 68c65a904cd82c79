// The words of the instructions window: its text pages, and which of the five picture buttons shows which of them.
// The pages are laid out by blanks and ruled lines for a fixed-pitch font; plain ASCII, lines ended by '\n'.
#pragma once

namespace tessaly {

struct helppage {
    const char* name;  // of the page's control
    int columns;       // characters that fit a line: half a window for a page that has a neighbour, else the whole
    const char* text;
};
constexpr int helppagecount = 8;
constexpr int helplines = 41;  // lines that fit a page
extern const helppage helppages[helppagecount];

// What a picture button shows; secondpage is nullptr where one page fills the window.
struct helpregion {
    const char* button;
    const char* firstpage;
    const char* secondpage;
};
constexpr int helpregioncount = 5;
extern const helpregion helpregions[helpregioncount];

}  // namespace tessaly

// The table of the windows that have something of their own. All others open beside the main window.

#include "windows/qt/dress.h"

#include "windows/qt/placement.h"

namespace tessaly {

namespace {

struct dresser {
    const window* of;
    void (*dress)(face&);
};
const dresser dressers[] = {
    {&startform, dressstartform},       {&vistaplan, dressvistaplan},   {&layoutgirder, dresslayoutgirder},
    {&layoutpanels, dresslayoutpanels}, {&layoutroof, dresslayoutroof}, {&easyviews, dresseasyviews},
};

}  // namespace

void dresswindow(face& f) {
    f.firstshowing = openbesidemain;
    for (const dresser& d : dressers)
        if (d.of == &f.of) d.dress(f);
}

}  // namespace tessaly

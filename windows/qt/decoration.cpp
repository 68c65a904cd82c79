// The table of the windows that have something of their own. All others open beside the main window.

#include "windows/qt/decoration.h"

#include "windows/qt/windowposition.h"

namespace tessaly {

namespace {

struct decorator {
    const window* of;
    void (*decorate)(windowframe&);
};
const decorator decorators[] = {
    {&startform, decoratestartform},       {&vistaplan, decoratevistaplan},   {&layoutgirder, decoratelayoutgirder},
    {&layoutpanels, decoratelayoutpanels}, {&layoutroof, decoratelayoutroof}, {&easyviews, decorateeasyviews},
};

}  // namespace

void decoratewindow(windowframe& f) {
    f.setfirstposition = openbesidemain;
    for (const decorator& d : decorators)
        if (d.of == &f.source) d.decorate(f);
}

}  // namespace tessaly

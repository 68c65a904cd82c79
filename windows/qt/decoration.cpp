// The windows that differ from the others. Windows not in the table only open beside the main window.

#include "windows/qt/decoration.h"

#include "windows/qt/windowposition.h"

namespace tessaly {

namespace {

struct decorator {
    const window* target;
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
        if (d.target == &f.source) d.decorate(f);
}

}  // namespace tessaly

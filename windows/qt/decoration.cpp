// Which procedures set up each window.

#include "windows/qt/decoration.h"

#include "windows/qt/windowposition.h"

namespace tessaly {

namespace {

struct decorator {
    const window* target;
    void (*decorate)(windowframe&);
    void (*setposition)(windowframe&);
};
const decorator decorators[] = {
    // clang-format off
    {&startform,    decoratestartform,    opencentred},
    {&vistaplan,    decoratevistaplan,    openmaximised},
    {&layoutgirder, decoratelayout,       openbesidemain},
    {&layoutpanels, decoratelayout,       openbesidemain},
    {&layoutroof,   decoratelayout,       openbesidemain},
    {&easyviews,    decorateeasyviews,    openbesidemain},
    {&instructions, [](windowframe&) {},  openbesidemain},
    // clang-format on
};

}  // namespace

void decoratewindow(windowframe& f) {
    for (const decorator& d : decorators) {
        if (d.target != &f.definition) continue;
        d.decorate(f);
        d.setposition(f);
    }
}

}  // namespace tessaly

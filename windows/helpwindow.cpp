// Shows and hides the pages of the instructions window.

#include "windows/helpwindow.h"

#include "windows/helppages.h"

namespace tessaly {

namespace {

void hidepages() {
    for (const helppage& p : helppages) hide(p.page);
    for (control* c : instructions.controls) c->chosen = false;
}

}  // namespace

void showpages(std::initializer_list<control*> pages) {
    hide(startpicbox);
    hidepages();
    usedcontrol->chosen = true;
    for (control* page : pages) show(*page);
}

void clickinstructionsbtn() {
    show(startpicbox);
    hidepages();
    showwindow(instructions);
}

void clickreturntomainbtn() { hidewindow(instructions); }

}  // namespace tessaly

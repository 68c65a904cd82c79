// Which pages stand in the instructions window, by the table of its regions.

#include "windows/helpwindow.h"

#include "core/controls.h"
#include "windows/helppages.h"

namespace tessaly {

namespace {

// Shows the pages of a button's region and hides all others; the hint belongs to no region and is never shown.
void showregion(const control& button) {
    hide(startpicbox);
    for (const helppage& page : helppages) hide(*findcontrol(page.name));
    for (const helpregion& region : helpregions) {
        if (button.name != region.button) continue;
        show(*findcontrol(region.firstpage));
        if (region.secondpage != nullptr) show(*findcontrol(region.secondpage));
    }
}

}  // namespace

void clickinstructionsbtn() {
    show(startpicbox);
    for (const helppage& page : helppages) hide(*findcontrol(page.name));
    showwindow(instructions);
}

void clickelementsbtn() { showregion(elementsbtn); }
void clickfilereaderbtn() { showregion(filereaderbtn); }
void clickdisplaybtn() { showregion(displaybtn); }
void clickviewcontrolbtn() { showregion(viewcontrolbtn); }
void clickcapturesbtn() { showregion(capturesbtn); }
void clickreturntomainbtn() { hidewindow(instructions); }

}  // namespace tessaly

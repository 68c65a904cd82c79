// Which pages stand in the instructions window, by the table of its regions.

#include "windows/helpwindow.h"

#include "windows/helppages.h"

namespace tessaly {

namespace {

void hidepages() {
    for (const helppage& page : helppages) hide(*page.on);
    for (const helpregion& region : helpregions) region.button->chosen = false;
}

// The hint belongs to no region and is never shown.
void showregion(const helpregion& region) {
    hide(startpicbox);
    hidepages();
    region.button->chosen = true;
    show(*region.firstpage);
    if (region.secondpage != nullptr) show(*region.secondpage);
}

}  // namespace

void definehelp() {
    for (const helppage& page : helppages) page.on->text = page.text;
    for (const helpregion& region : helpregions) region.button->run = [&region] { showregion(region); };
}

void clickinstructionsbtn() {
    show(startpicbox);
    hidepages();
    showwindow(instructions);
}

void clickreturntomainbtn() { hidewindow(instructions); }

}  // namespace tessaly

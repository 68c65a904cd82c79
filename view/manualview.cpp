// SET, Default view, and the buttons that show and hide boxes.

#include "view/manualview.h"

#include "core/viewvalues.h"
#include "render/projector.h"
#include "render/redraw.h"

namespace tessaly {

namespace {

// Compares texts character by character: "100" differs from "100.0", and a number differs from every text. An eye that
// nudgeview has moved is a number, so it is excluded from the comparisons that follow.
bool sametext(const value& a, const value& b) { return a.istext() && b.istext() && a.text() == b.text(); }

}  // namespace

void clickcventerbtn() {
    perprelative = 0;
    restorepoints();
    for (const viewvalue& v : viewvalues) readbox(v);
    nudgeview(sametext);
    storeeye();
    clearpicture();
    projectdraw();
    writeviewboxes(setcuts, mag / 10);
    copyboxestoeasyviews();
}

void clickdefaultviewbtn() {
    rotstage = 1;
    hide(rotleftbtn);
    hide(rotrightbtn);
    perpx = 1850;
    perpy = -1850;
    perpz = 550;
    focusx = 0;
    focusy = 0;
    focusz = 280;
    mag = 0.056;
    vertshift = 170;
    horizshift = -270;
    drawrelativeview();
    copyboxestoeasyviews();
}

void clickhidpfm() {
    for (const viewvalue& v : taggedvalues) hide(v.box);
    hide(hidpfm);
    show(shopfm);
}

void clickshopfm() {
    for (const viewvalue& v : taggedvalues) show(v.box);
    show(hidpfm);
    hide(shopfm);
}

// The first two pictures are shifted by the focus, because the working points are relative to the focus already; the
// last one covers them.
void drawrelativeview() {
    storeeye();
    projectdraw();
    if (repaintmainwindow) repaintmainwindow();
    replot();
    settle();
    replot();
    writeviewboxes(relativeviewcuts);
}

}  // namespace tessaly

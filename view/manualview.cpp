// SET, Default view, and the buttons that show and hide boxes.

#include "view/manualview.h"

#include "core/viewvalues.h"
#include "render/projector.h"
#include "render/redraw.h"

namespace tessaly {

namespace {

// Compares texts character by character: "100" differs from "100.0", and a number differs from every text. A coordinate
// that nudgeview has moved is a number, so the comparisons that follow do not find it equal.
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

// The working points are relative to the focus already, so projectdraw and settle draw pictures that are shifted by the
// focus. The replot after each of them draws the right picture.
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

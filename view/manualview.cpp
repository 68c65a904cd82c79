// SET, Default view, and the boxes shown or hidden.

#include "view/manualview.h"

#include "render/projector.h"
#include "render/redraw.h"
#include "view/viewboxes.h"

namespace tessaly {

namespace {

// Character by character: "100" is not "100.0", and a number is the same as no text. An eye that has been moved is a
// number, and so is out of the comparisons that follow.
bool sametext(const value& a, const value& b) { return a.istext() && b.istext() && a.text() == b.text(); }

}  // namespace

void clickcventerbtn() {
    perprelative = 0;
    restorepoints();
    for (const viewvalue& f : viewvalues) f.figure = boxvalue(f.box);
    nudgeview(sametext);
    keepeye();
    clearpicture();
    projectdraw();
    sumabsoluteeye();
    // A character less for the last three than a step writes: a shift of -1270 reads -127 from here on, and the next
    // SET takes that. The box is the truth after SET.
    writeeyeboxes(perpabsx, perpabsy, perpabsz, 5);
    writeboxes(focusvalues, 5);
    writebox(magtxt, boxtext(mag / 10, 5));
    writeboxes(shiftvalues, 4);
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
    for (const viewvalue& f : taggedvalues) hide(f.box);
    hide(hidpfm);
    show(shopfm);
}

void clickshopfm() {
    for (const viewvalue& f : taggedvalues) show(f.box);
    show(hidpfm);
    hide(shopfm);
}

// The first picture is off by one focus, for the points stand on the focus already; only the last is seen.
void drawrelativeview() {
    keepeye();
    projectdraw();
    if (repaintmainwindow) repaintmainwindow();
    replot();
    sumabsoluteeye();
    settle();
    replot();
    writesteppedview();
    writeboxes(shiftvalues, 5);
}

}  // namespace tessaly

// SET, Default view, and the boxes shown or hidden.

#include "view/manualview.h"

#include "core/colour.h"
#include "core/failure.h"
#include "core/viewboxes.h"
#include "core/world.h"
#include "render/projector.h"
#include "render/redraw.h"
#include "render/surface.h"

namespace tessaly {

namespace {

control* const hiddenboxes[] = {&perptxtx, &perptxty, &perptxtz, &focustxtx, &focustxty, &focustxtz, &magtxt};

void takeboxes() {
    perpx = boxvalue(perptxtx);
    perpy = boxvalue(perptxty);
    perpz = boxvalue(perptxtz);
    focusx = boxvalue(focustxtx);
    focusy = boxvalue(focustxty);
    focusz = boxvalue(focustxtz);
    mag = boxvalue(magtxt);
    vertshift = boxvalue(verttxt);
    horizshift = boxvalue(horiztxt);
}

// Character by character: "100" is not "100.0", and a number is the same as no text.
bool sametext(const value& a, const value& b) { return a.istext() && b.istext() && a.text() == b.text(); }

bool sameratio(const value& a, const value& b, const value& c, const value& d) {
    return quotient(a, b, "ratio of eye coordinates") == quotient(c, d, "ratio of focus coordinates");
}

// Moves eye and focus out of sight lines that the projection cannot carry. The first three compare what was typed, and
// an eye that one of them has moved is a number, which the next do not see any more.
void nudge() {
    if (sametext(focusx, perpx) && sametext(focusy, perpy)) perpx = perpx * 0.997;
    if (sametext(focusx, perpx) && sametext(focusz, perpz)) perpx = perpx * 0.998;
    if (sametext(focusy, perpy) && sametext(focusz, perpz)) perpy = perpy * 0.999;
    for (value* figure : {&focusy, &focusx, &focusz, &perpx, &perpy, &perpz})
        if (*figure == 0) *figure = 0.1;
    if (sameratio(perpx, perpy, focusx, focusy)) perpx = perpx * 0.997;
    if (sameratio(perpx, perpz, focusx, focusz)) perpx = perpx * 0.998;
    if (sameratio(perpy, perpz, focusy, focusz)) perpy = perpy * 0.999;
}

void keepeye() {
    perprelx = perpx;
    perprely = perpy;
    perprelz = perpz;
}

}  // namespace

void clickcventerbtn() {
    perprelative = 0;
    restorepoints();
    takeboxes();
    nudge();
    keepeye();
    viewportsurface->wash(1, 1450, 1, 1010, backgroundcolour());
    projectdraw();
    sumabsoluteeye();
    // A character less for the last three than a step writes: a shift of -1270 reads -127 from here on, and the next
    // SET takes that. The box is the truth after SET.
    writeeyeboxes(perpabsx, perpabsy, perpabsz, 5);
    writefocusboxes(5);
    magtxt.text = boxtext(mag / 10, 5);
    writeshiftboxes(4);
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
    for (control* box : hiddenboxes) hide(*box);
    hide(hidpfm);
    show(shopfm);
}

void clickshopfm() {
    for (control* box : hiddenboxes) show(*box);
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
    sumeye();
    writeeyeboxes(perpsumx, perpsumy, perpsumz, 5);
    writefocusboxes(5);
    magtxt.text = boxtext(magshown, 6);
    writeshiftboxes(5);
}

}  // namespace tessaly

// The view boxes: read as text, written by cutting.

#include "core/viewboxes.h"

#include "core/world.h"

namespace tessaly {

value boxvalue(const control& box) { return value(box.text, "text box " + box.name); }

double pickedstep(const control& list, double usual) {
    const double step = Val(selectedtext(list));
    return step == 0 ? usual : step;
}

void sumeye() {
    perpsumx = perpx + focusx;
    perpsumy = perpy + focusy;
    perpsumz = perpz + focusz;
}

void sumabsoluteeye() {
    perpabsx = perprelx + focusx;
    perpabsy = perprely + focusy;
    perpabsz = perprelz + focusz;
}

void writeeyeboxes(const value& x, const value& y, const value& z, std::size_t n) {
    perptxtx.text = boxtext(x, n);
    perptxty.text = boxtext(y, n);
    perptxtz.text = boxtext(z, n);
}

void writefocusboxes(std::size_t n) {
    focustxtx.text = boxtext(focusx, n);
    focustxty.text = boxtext(focusy, n);
    focustxtz.text = boxtext(focusz, n);
}

void writeshiftboxes(std::size_t n) {
    verttxt.text = boxtext(vertshift, n);
    horiztxt.text = boxtext(horizshift, n);
}

void copytoeasyviews(const control& box, control& copy) {
    easyviews.created = true;
    copy.text = box.text;
}

void copyboxestoeasyviews() {
    copytoeasyviews(focustxtx, efocusxbox);
    copytoeasyviews(focustxty, efocusybox);
    copytoeasyviews(focustxtz, efocuszbox);
    copytoeasyviews(perptxtx, eperpxbox);
    copytoeasyviews(perptxty, eperpybox);
    copytoeasyviews(perptxtz, eperpzbox);
}

}  // namespace tessaly

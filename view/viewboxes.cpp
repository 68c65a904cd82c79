// The boxes of the view controls.

#include "view/viewboxes.h"

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

void writesteppedview() {
    sumeye();
    writeeyeboxes(perpsumx, perpsumy, perpsumz, 5);
    writeboxes(focusfigures, 5);
    magtxt.text = boxtext(magshown, 6);
}

}  // namespace tessaly

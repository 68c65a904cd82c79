// The boxes of the view controls.

#include "view/viewboxes.h"

#include <algorithm>
#include <iterator>

namespace tessaly {

value boxvalue(const control& box) {
    const auto shown = std::find_if(std::begin(viewvalues), std::end(viewvalues),
                                    [&box](const viewvalue& f) { return &f.box == &box; });
    return value(box.text, std::string("the box \"") + (shown->tag ? shown->tag : shown->word) + '"');
}

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
    writeboxes(focusvalues, 5);
    writebox(magtxt, boxtext(magshown, 6));
}

}  // namespace tessaly

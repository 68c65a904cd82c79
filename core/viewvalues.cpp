// The boxes of the view, written by cutting.

#include "core/viewvalues.h"

namespace tessaly {

void writeeyeboxes(const value& x, const value& y, const value& z, std::size_t n) {
    writebox(perptxtx, boxtext(x, n));
    writebox(perptxty, boxtext(y, n));
    writebox(perptxtz, boxtext(z, n));
}

void writeboxes(viewvaluespan figures, std::size_t n) {
    for (const viewvalue& f : figures) writebox(f.box, boxtext(f.figure, n));
}

void copytoeasyviews(const viewvalue& f) {
    easyviews.created = true;
    f.copy->text = f.box.text;
    f.copy->written = f.box.written;
}

void copyboxestoeasyviews() {
    for (const viewvalue& f : viewvalues)
        if (f.copy) copytoeasyviews(f);
}

}  // namespace tessaly

// The boxes of the view, written by cutting.

#include "core/viewvalues.h"

namespace tessaly {

void writeeyeboxes(const value& x, const value& y, const value& z, std::size_t n) {
    perptxtx.text = boxtext(x, n);
    perptxty.text = boxtext(y, n);
    perptxtz.text = boxtext(z, n);
}

void writeboxes(viewvaluespan figures, std::size_t n) {
    for (const viewvalue& f : figures) f.box.text = boxtext(f.figure, n);
}

void copytoeasyviews(const viewvalue& f) {
    easyviews.created = true;
    f.copy->text = f.box.text;
}

void copyboxestoeasyviews() {
    for (const viewvalue& f : viewvalues)
        if (f.copy) copytoeasyviews(f);
}

}  // namespace tessaly

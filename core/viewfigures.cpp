// The boxes of the view, written by cutting.

#include "core/viewfigures.h"

namespace tessaly {

void writeeyeboxes(const value& x, const value& y, const value& z, std::size_t n) {
    perptxtx.text = boxtext(x, n);
    perptxty.text = boxtext(y, n);
    perptxtz.text = boxtext(z, n);
}

void writeboxes(figurespan figures, std::size_t n) {
    for (const viewfigure& f : figures) f.box.text = boxtext(f.figure, n);
}

void copytoeasyviews(const viewfigure& f) {
    easyviews.created = true;
    f.copy->text = f.box.text;
}

void copyboxestoeasyviews() {
    for (const viewfigure& f : viewfigures)
        if (f.copy) copytoeasyviews(f);
}

}  // namespace tessaly

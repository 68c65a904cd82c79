// Reads and writes the boxes of the view values.

#include "core/viewvalues.h"

namespace tessaly {

namespace {

void writecut(control& box, const value& number, std::size_t cut) {
    if (cut > 0) writebox(box, boxtext(number, cut));
}

}  // namespace

void readbox(const viewvalue& v) {
    v.variable = value(v.box.text, std::string("the box \"") + (v.tag ? v.tag : v.name) + '"');
}

void writeviewboxes(const boxcuts& cuts, const value& shownmag) {
    if (cuts.eyesource == summedeye) {
        perpsumx = perpx + focusx;
        perpsumy = perpy + focusy;
        perpsumz = perpz + focusz;
    }
    for (std::size_t i = 0; i < 3; ++i) writecut(eyevalues[i].box, *cuts.eyesource[i], cuts.eye);
    for (const viewvalue& v : focusvalues) writecut(v.box, v.variable, cuts.focus);
    writecut(magtxt, shownmag, cuts.mag);
    for (const viewvalue& v : shiftvalues) writecut(v.box, v.variable, cuts.shifts);
}

void copytoeasyviews(const viewvalue& v) {
    v.easyviewsbox->text = v.box.text;
    v.easyviewsbox->programtext = v.box.programtext;
}

void copyboxestoeasyviews() {
    for (const viewvalue& v : viewvalues)
        if (v.easyviewsbox) copytoeasyviews(v);
}

}  // namespace tessaly

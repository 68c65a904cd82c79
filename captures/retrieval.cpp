// The effect of a failed retrieval depends on the step that failed. Until the view record has been read, the view is
// unchanged, but a record that is too short leaves channel 1 open. After that, the view may be partly set, or only the
// bitmap may be missing.

#include "captures/retrieval.h"

#include "captures/capture.h"
#include "core/characters.h"
#include "core/failure.h"
#include "core/fields.h"
#include "core/textfiles.h"
#include "core/viewvalues.h"
#include "render/palette.h"
#include "render/projector.h"
#include "render/redraw.h"
#include "render/surface.h"

#include <vector>

namespace tessaly {

namespace {

// Sets the names of the bitmap and the view record to which the picked file belongs. If it is neither a .txt nor a
// .bmp, the bitmap is that of the last retrieval.
void setfilenames() {
    const std::string name = bmpfile.text(), stem = stemof(bmpfile);
    bmpstem = stem;
    bmpext = name.substr(stem.size());
    if (bmpext.is(".txt") || bmpext.is(".bmp")) bmpimage = stem + ".bmp";
    bmpsidecar = stem + ".txt";
}

// Returns the first nine fields of the view record, as texts. If the file has fewer, channel 1 stays open, and every
// later opening of the channel fails. This is intended.
std::vector<value> readviewrecord() {
    const std::string path = "bmps\\" + bmpsidecar.text();
    std::vector<value> fields;
    textinput& in = openinput(1, path, "view record");
    for (const viewvalue& v : viewvalues)
        fields.emplace_back(fromwindows1252(readrecordtext(in, v.name)), path + " (" + v.name + ")");
    in.close();
    return fields;
}

void restorecapture() {
    setfilenames();
    const std::vector<value> fields = readviewrecord();
    perprelative = 0;
    restorepoints();
    auto field = fields.begin();
    for (const viewvalue& v : viewvalues) v.variable = *field++;
    storeeye();
    // Other clears draw more rows, but these also cover the complete picture, except row 0 and column 0.
    viewportsurface->fillrows(1, 1125, 1, 829, backgroundcolour());
    projectdraw();
    writeviewboxes(retrievalcuts, mag / 10);
    copyboxestoeasyviews();
    viewportsurface->setpicture("bmps\\" + bmpimage.text());
}

}  // namespace

void clickretrieveimagetbtn() {
    show(bmplistbox);
    refresh(bmplistbox);
    for (control* c : {&closebmpbtn, &delbmpbtn, &displayimagebtn, &capbox}) show(*c);
}

void clickclosebmpbtn() {
    for (control* c : {&displayimagebtn, &delbmpbtn, &bmplistbox, &closebmpbtn, &capbox}) hide(*c);
}

void clickdelbmpbtn() {
    bmpfile = selectedtext(bmplistbox);
    try {
        deletefile("bmps\\" + bmpfile.text());
    } catch (const failure&) {  // nothing is picked, or the file is gone: ignored
    }
}

void clickdisplayimagebtn() {
    bmpfile = selectedtext(bmplistbox);
    try {
        restorecapture();
    } catch (const failure&) {  // no message: only the list closes
    }
    clickclosebmpbtn();
    capbox.text.clear();
}

}  // namespace tessaly

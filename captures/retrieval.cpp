// What a failure leaves depends on the step that it ends: before the record is read nothing has changed, while it is
// read channel 1 stays open, in the drawing the view is half set, and without a bitmap only the picture is not there.

#include "captures/retrieval.h"

#include "captures/capture.h"
#include "core/colour.h"
#include "core/failure.h"
#include "core/fields.h"
#include "core/textfiles.h"
#include "core/viewvalues.h"
#include "core/windows1252.h"
#include "render/projector.h"
#include "render/redraw.h"
#include "render/surface.h"

#include <vector>

namespace tessaly {

namespace {

// From the name picked to the names of its pair. Another ending leaves the bitmap of the retrieval before.
void namefiles() {
    const std::string name = bmpfile.text(), stem = stemof(bmpfile);
    bmpstem = stem;
    bmpext = name.substr(stem.size());
    if (bmpext.is(".txt") || bmpext.is(".bmp")) bmpimage = stem + ".bmp";
    bmpsidecar = stem + ".txt";
}

// The first nine fields, as texts. A record that ends early leaves the channel open: every later opening of it fails.
std::vector<value> readviewrecord() {
    const std::string path = "bmps\\" + bmpsidecar.text();
    std::vector<value> fields;
    textinput& in = openinput(1, path, "view record");
    for (const viewvalue& f : viewvalues)
        fields.emplace_back(fromwindows1252(readrecordtext(in, f.word)), path + " (" + f.word + ")");
    in.close();
    return fields;
}

void writenineboxes() {
    constexpr std::size_t cut = 9;
    sumabsoluteeye();
    writeeyeboxes(perpabsx, perpabsy, perpabsz, cut);
    writeboxes(focusvalues, cut);
    magtxt.text = boxtext(mag / 10, cut);
    writeboxes(shiftvalues, cut);
    copyboxestoeasyviews();
}

void bringback() {
    namefiles();
    const std::vector<value> fields = readviewrecord();
    perprelative = 0;
    restorepoints();
    auto field = fields.begin();
    for (const viewvalue& f : viewvalues) f.figure = *field++;
    keepeye();
    // Less than other clears: what lies beyond shows until the bitmap covers it.
    viewportsurface->fillrows(1, 1125, 1, 829, backgroundcolour());
    projectdraw();
    writenineboxes();
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
    } catch (const failure&) {  // nothing picked, gone already: the click ends
    }
}

void clickdisplayimagebtn() {
    bmpfile = selectedtext(bmplistbox);
    try {
        bringback();
    } catch (const failure&) {  // the list closes, and the user is told nothing
    }
    clickclosebmpbtn();
    capbox.text.clear();
}

}  // namespace tessaly

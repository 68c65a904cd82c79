// What a failure leaves depends on the step that it ends: before the record is read nothing has changed, while it is
// read channel 1 stays open, in the drawing the view is half set, and without a bitmap only the picture is not there.

#include "captures/retrieval.h"

#include "captures/capture.h"
#include "core/channels.h"
#include "core/colour.h"
#include "core/controls.h"
#include "core/failure.h"
#include "core/fields.h"
#include "core/viewboxes.h"
#include "core/windows1252.h"
#include "core/world.h"
#include "render/projector.h"
#include "render/redraw.h"
#include "render/surface.h"

#include <array>
#include <iterator>

namespace tessaly {

namespace {

constexpr const char* fieldnames[] = {"eye X",   "eye Y",         "eye Z",          "focus X",         "focus Y",
                                      "focus Z", "magnification", "vertical shift", "horizontal shift"};
using viewrecord = std::array<value, std::size(fieldnames)>;

// From the name picked to the names of its pair. Another ending leaves the bitmap of the retrieval before.
void namefiles() {
    const std::string name = bmpfile.text(), stem = stemof(bmpfile);
    bmpstem = stem;
    bmpext = name.substr(stem.size());
    if (bmpext.is(".txt") || bmpext.is(".bmp")) bmpimage = stem + ".bmp";
    bmpsidecar = stem + ".txt";
}

// The first nine fields, as texts. A record that ends early leaves the channel open: every later opening of it fails.
viewrecord readviewrecord() {
    const std::string path = "bmps\\" + bmpsidecar.text();
    viewrecord fields;
    openinput(1, path, "view record");
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i] = value(fromwindows1252(readtextfield(1, fieldnames[i])), path + " (" + fieldnames[i] + ")");
    closechannel(1);
    return fields;
}

void takeview(const viewrecord& fields) {
    perpx = fields[0];
    perpy = fields[1];
    perpz = fields[2];
    focusx = fields[3];
    focusy = fields[4];
    focusz = fields[5];
    mag = fields[6];
    vertshift = fields[7];
    horizshift = fields[8];
    perprelx = perpx;
    perprely = perpy;
    perprelz = perpz;
}

void writeboxes() {
    constexpr std::size_t cut = 9;
    sumabsoluteeye();
    writeeyeboxes(perpabsx, perpabsy, perpabsz, cut);
    writefocusboxes(cut);
    magtxt.text = boxtext(mag / 10, cut);
    writeshiftboxes(cut);
    copyboxestoeasyviews();
}

void bringback() {
    namefiles();
    const viewrecord fields = readviewrecord();
    perprelative = 0;
    restorepoints();
    takeview(fields);
    // Less than other clears: what lies beyond shows until the bitmap covers it.
    viewportsurface->wash(1, 1125, 1, 829, backgroundcolour());
    projectdraw();
    writeboxes();
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

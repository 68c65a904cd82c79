// The capture takes its figures from the boxes, as text: what was typed and not yet SET goes into the record.

#include "captures/capture.h"

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/viewvalues.h"
#include "core/windows1252.h"
#include "render/surface.h"

namespace tessaly {

namespace {

// Nine fields in quotation marks; nothing in them is escaped, also not a quotation mark.
std::string viewrecord() {
    std::string record;
    for (const viewvalue& f : viewvalues) record += (record.empty() ? "\"" : ",\"") + towindows1252(f.box.text) + '"';
    return record + "\r\n";
}

void closedialog() {
    capbox.text.clear();
    for (control* c : {&screencapenter, &capescapebtn, &capbox}) hide(*c);
}

}  // namespace

void clickscreencapbtn() {
    for (control* c : {&bmplabel, &capbox, &screencapenter, &capescapebtn}) show(*c);
    wantedfocus = &capbox;
}

void clickcapescapebtn() {
    closedialog();
    hide(bmplabel);
}

// The record is written first and the dialog closed before the bitmap: a bitmap that fails leaves its record.
void clickscreencapenter() {
    hide(bmplabel);
    capname = capbox.text;
    const std::string record = viewrecord();
    capsidecar = stemof(capname) + ".txt";
    textoutput& sidecar = openappend(1, "bmps\\" + capsidecar.text(), "view record");
    sidecar.write(record);
    sidecar.close();
    closedialog();
    viewportsurface->save("bmps\\" + capname.text());
}

std::string stemof(const value& name) {
    const std::string whole = name.text();
    std::size_t end = whole.size();
    for (int dropped = 0; dropped < 4; ++dropped) {
        if (end == 0)
            throw failure(failurekind::invalidcall,
                          "\"" + whole + "\" as a file name in bmps, four characters or more were expected");
        for (--end; end > 0 && continuescharacter(whole[end]);) --end;  // a UTF-8 character
    }
    return whole.substr(0, end);
}

}  // namespace tessaly

// The view record of a capture holds the texts of the boxes, not the view. A number that was typed, but not yet applied
// with SET, is recorded too.

#include "captures/capture.h"

#include "core/characters.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/viewvalues.h"
#include "render/surface.h"

namespace tessaly {

namespace {

// Returns the record: nine fields in quotation marks. Nothing in them is escaped, not even a quotation mark.
std::string viewrecord() {
    std::string record;
    for (const viewvalue& v : viewvalues) record += (record.empty() ? "\"" : ",\"") + towindows1252(v.box.text) + '"';
    return record + "\r\n";
}

// Fails with file access error if a name contains a slash, which would lead out of the folder, or a zero byte.
void expectbarename(const std::string& name) {
    if (name.find_first_of(std::string_view("/\0", 2)) != std::string::npos)
        throw failure(failurekind::fileaccess, "a name without / was expected", shortpath("bmps\\" + name),
                      "type a name such as tower.bmp");
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

// The record is written and the dialog closed before the bitmap is saved. If saving fails, the record stays.
void clickscreencapenter() {
    hide(bmplabel);
    capname = capbox.text;
    const std::string record = viewrecord();
    capsidecar = stemof(capname) + ".txt";
    expectbarename(capname.text());
    textoutput& sidecar = openappend(1, "bmps\\" + capsidecar.text(), "view record");
    sidecar.write(record);
    sidecar.close();
    closedialog();
    viewportsurface->save("bmps\\" + capname.text());
}

std::string stemof(const value& name) {
    constexpr std::size_t extension = 4;  // characters
    const std::string whole = name.text();
    const std::size_t count = charactercount(whole);
    if (count < extension)
        throw failure(failurekind::invalidcall,
                      "\"" + whole + "\" as a file name in bmps: four characters or more were expected", {},
                      "type a name such as tower.bmp");
    return std::string(firstcharacters(whole, count - extension));
}

}  // namespace tessaly

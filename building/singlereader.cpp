// The single file reader. The class of a file is told by its name, and the class decides how a record's code is read;
// the record's own kind reaches nothing but the solid painter.

#include "building/singlereader.h"

#include "building/designfiles.h"
#include "building/records.h"
#include "building/replay.h"
#include "core/controls.h"
#include "core/textfiles.h"

namespace tessaly {

namespace {

constexpr int maxwirerecords = 10000;

// What the three classes of design files keep apart.
struct recordclass {
    const char* prefix;  // of the file's name
    value kind;          // by which its codes are read
    recordcolumn number, code,
        trailer;  // a roof's trailer is not kept: what stood in rdtrailer before is written for it
};

const recordclass classes[] = {
    // clang-format off
    {"gird", "girder", {nullptr, &rdgirdernumber}, {&girdercode, &rdgirdercode}, {nullptr, &rdtrailer}},
    {"pane", "panel",  {nullptr, &rdpanelnumber},  {&panelcode,  &rdpanelcode},  {nullptr, &rdtrailer}},
    {"roof", "roof",   {nullptr, &rdroofnumber},   {&roofcode,   &rdroofcode},   {}},
    // clang-format on
};

const recordclass& classof(const std::string& name) {
    for (const recordclass& c : classes)
        if (name.substr(0, 4) == c.prefix) return c;
    throw failure(failurekind::typemismatch, "the name " + name + " tells no class of design file");
}

std::vector<recordcolumn> columnsof(const recordclass& c) { return designcolumns(c.number, c.code, c.trailer); }

void offer(control& list) {
    show(escapefilelistbtn);
    refresh(list);
    show(list);
}

// Hides a list of which an entry was picked. Returns that file.
replayfile takepick(control& list) {
    hide(list);
    hide(escapefilelistbtn);
    return pickedfile(list);
}

// The first steps of both replays. writes: secondfilename, floor.
const recordclass& takename(const replayfile& file) {
    secondfilename = file.name;
    floorfromname(file.floorby);
    return classof(file.name);
}

}  // namespace

void clickautowiresingle() { offer(autofile); }

void clickautosolidsingle() { offer(autofile5); }

void pickautofile() {
    const recordclass& c = takename(takepick(autofile));
    const std::vector<recordcolumn> form = columnsof(c);
    textinput& in = openinput(2, designpath(secondfilename), "design file");
    untilfailure(maxwirerecords, [&](int) {
        const fieldlocation record = in.next;
        readrecord(in, form);
        drawrecord(c.kind, *c.code.scalar, in, record);
    });
    in.close();
}

void pickautofile5() { replaysolid(takepick(autofile5)); }

void replaysolid(const replayfile& file) {
    const recordclass& c = takename(file);
    std::vector<recordcolumn> form = columnsof(c);
    for (int i = 1; i <= lastrecord; ++i) c.number.kept->set(i, 0);
    const std::vector<recordorigin> records = keepdesignfile(2, secondfilename, form);
    const int n = static_cast<int>(records.size());
    makeeyeabsolute();
    measurerecords(n);
    sortrecords(*c.number.kept, n);
    form.front() = {};  // in the temporary file the sorted position stands in the kind's place
    const auto sortedline = [&form](int slot) {
        const value& r = rdorder[slot];
        return keptline(slot, recordcolumns(form).subspan(1, form.size() - 2), r, rdtrailer[r]);
    };
    addlines(tempfile, n, sortedline, [&records](int slot) {
        const auto r = static_cast<std::size_t>(double(rdorder[slot]));
        return r - 1 < records.size() ? records[r - 1] : recordorigin{};
    });
    drawprogress(n);
    paintrecords(tempfile, 1, n, form, c.kind, *c.code.scalar);
    deletetemporary(tempfile);
    hide(progressbar);
}

}  // namespace tessaly

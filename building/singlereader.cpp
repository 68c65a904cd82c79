// The single file reader. The name of a file determines its class, and the class determines the meaning of a record's
// code. Only the solid painter uses the kind in the record.

#include "building/singlereader.h"

#include "building/designfiles.h"
#include "building/records.h"
#include "building/replay.h"
#include "core/controls.h"
#include "core/textfiles.h"

namespace tessaly {

namespace {

constexpr int maxwirerecords = 10000;

std::vector<recordcolumn> columnsof(const fileclass& c) {
    return designcolumns({nullptr, &c.numbers}, {&c.code, &c.codes}, {nullptr, c.trailers});
}

void showlist(control& list) {
    show(escapefilelistbtn);
    refresh(list);
    show(list);
}

// Hides a list in which a file was picked, and returns that file.
replayfile acceptfile(control& list) {
    hide(list);
    hide(escapefilelistbtn);
    return pickedfile(list);
}

// Sets secondfilename and the floor from a file, and returns its class.
const fileclass& setfile(const replayfile& file) {
    secondfilename = file.name;
    return floorfromname(file.floorby);
}

}  // namespace

void clickautowiresingle() { showlist(autofile); }

void clickautosolidsingle() { showlist(autofile5); }

void pickautofile() {
    const fileclass& c = setfile(acceptfile(autofile));
    const std::vector<recordcolumn> columns = columnsof(c);
    textinput& in = openinput(2, designpath(secondfilename), "design file");
    repeatuntilfailure(maxwirerecords, [&](int) {
        const fieldlocation record = in.nextlocation;
        readrecord(in, columns);
        drawrecord(c.kind, c.code, in, record);
    });
    in.close();
}

void pickautofile5() { replaysolid(acceptfile(autofile5)); }

void replaysolid(const replayfile& file) {
    const fileclass& c = setfile(file);
    std::vector<recordcolumn> columns = columnsof(c);
    for (int i = 1; i <= lastrecord; ++i) c.numbers.set(i, 0);
    const std::vector<recordorigin> records = loaddesignfile(2, secondfilename, columns);
    const int n = static_cast<int>(records.size());
    makeeyeabsolute();
    measurerecords(n);
    sortrecords(c.numbers, n);
    columns.front() = {};  // in the temporary file the sort position replaces the kind
    const auto sortedline = [&columns](int slot) {
        const value& r = rdorder[slot];
        return formatrecord(slot, recordcolumns(columns).subspan(1, columns.size() - 2), r, rdtrailer[r]);
    };
    addlines(tempfile, n, sortedline, [&records](int slot) {
        const auto r = static_cast<std::size_t>(double(rdorder[slot]));
        return r - 1 < records.size() ? records[r - 1] : recordorigin{};
    });
    drawprogress(n);
    paintrecords(tempfile, 1, n, columns, c.kind, c.code);
    deletetemporary(tempfile);
    hide(progressbar);
}

}  // namespace tessaly

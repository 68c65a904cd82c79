// The single file reader. The name of a file determines its class. The class, not the kind in the record, determines
// the meaning of a record's code; only the solid painter uses that kind.

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

// Sets secondfilename and the floor from a file. Returns the class of the file.
const fileclass& setsecondfile(const replayfile& file) {
    secondfilename = file.name;
    return floorfromname(file);
}

}  // namespace

void clickautowiresingle() { showlist(autofile); }

void clickautosolidsingle() { showlist(autofile5); }

void pickautofile() {
    const fileclass& c = setsecondfile(acceptfile(autofile));
    const std::vector<recordcolumn> columns = columnsof(c);
    textinput& in = openinput(2, designpath(secondfilename), "design file");
    repeatuntilfailure(maxwirerecords, [&](int) {
        const fieldlocation record = in.nextlocation;
        readrecord(in, columns);
        loadrecordelement(c.kind, c.code, in, record);
    });
    in.close();
}

void pickautofile5() { replaysolid(acceptfile(autofile5)); }

void replaysolid(const replayfile& file) {
    const fileclass& c = setsecondfile(file);
    for (int i = 1; i <= lastrecord; ++i) c.numbers.set(i, 0);
    std::vector<recordcolumn> columns = columnsof(c);
    const std::vector<recordorigin> records = loaddesignfile(2, secondfilename, columns);
    // In the temporary file, the rank in the order replaces the kind. The trailer of a roof, which is not stored, is
    // replaced by the one that an earlier file left in the table.
    columns.front() = {};
    columns.back().stored = &rdtrailer;
    paintsorted(tempfile, static_cast<int>(records.size()), columns, c.numbers, c.kind, c.code, records);
}

}  // namespace tessaly

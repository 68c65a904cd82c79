// The girder and panel file reader. It traps only the end of a design file; any other failure ends the program. It
// never sets panelcode, so the painter's line density remains that of the last panel chosen or replayed singly.

#include "building/combinedreader.h"

#include "building/designfiles.h"
#include "building/records.h"
#include "building/replay.h"
#include "core/controls.h"
#include "core/textfiles.h"

namespace tessaly {

namespace {

// Clears the record tables before a design file is read.
void clearrecords() {
    for (int i = 1; i <= lastrecord; ++i) {
        for (auto* number : {&rdnumber, &rdroofnumber, &rdgirdernumber, &rdpanelnumber}) number->set(i, 0);
        rdkind.set(i, "");
    }
}

const std::vector<recordcolumn> bothcolumns =
    designcolumns({nullptr, &rdnumber}, {&girdercode, &rdcode}, {nullptr, &rdtrailer});

// Returns the twelve columns of the temporary files: first, the ten columns of a design record before its trailer,
// last.
std::vector<recordcolumn> tempcolumns(recordcolumn first, recordcolumn last) {
    std::vector<recordcolumn> all = designcolumns({&anynumber, &rdnumber}, {&anycode, &rdcode}, last);
    all.insert(all.begin(), first);
    return all;
}
const std::vector<recordcolumn> wirecolumns = tempcolumns({&placez, nullptr}, {nullptr, &rdtrailer});
const std::vector<recordcolumn> solidcolumns = tempcolumns({}, {&placez, &rdplacez});

constexpr int tempfirstfield = 0;  // the record's fields follow the line's first one

// Formats record r of the tables as a line of a temporary file.
std::string templine(const value& first, const value& r, const value& last) {
    return formatrecord(first, recordcolumns(bothcolumns).first(bothcolumns.size() - 1), r, last);
}
std::string wireline(int i) { return templine(placez, i, rdtrailer[i]); }
std::string solidline(int i) { return templine(i, i, placez); }
std::string sortedline(int slot) { return templine(slot, rdorder[slot], rdplacez[rdorder[slot]]); }

recordorigin sortedorigin(int slot) {
    const auto record = static_cast<std::size_t>(double(rdorder[slot]));
    return record - 1 < tempfile.origins.size() ? tempfile.origins[record - 1] : recordorigin{};
}

// Reads a design file into the record tables, adds its number of records to combinedcount and its records to tempfile.
template <class formatter>
void addfile(const replayfile& file, formatter line) {
    clearrecords();
    const std::vector<recordorigin> records = loaddesignfile(1, file.name, bothcolumns);
    const int n = static_cast<int>(records.size());
    combinedcount = combinedcount + n;
    floorfromname(file.floorby);
    addlines(tempfile, n, line, [&records](int i) { return records[static_cast<std::size_t>(i - 1)]; });
}

// Reads the records of both files from tempfile back into the record tables. Leaves the scalars alone: reading the
// sorted file sets them. fails: subscript for record 1001.
void loadbothfiles(int n) {
    std::vector<recordcolumn> withoutscalars = solidcolumns;
    for (recordcolumn& c : withoutscalars) c.scalar = nullptr;
    textinput& in = opentemporary(tempfile);
    for (int k = 1; k <= n; ++k) {
        locaterecord(in, tempfile, k, tempfirstfield);
        storerecord(k, withoutscalars, readrecord(in, withoutscalars));
    }
    in.close();
}

// Draws the records of tempfile as a wireframe, those of the first file first. reads: combinedcount.
void replaycombined() {
    const int n = indexof(combinedcount, "combinedcount", 2 * lastrecord);
    textinput& in = opentemporary(tempfile);
    for (int k = 1; k <= n; ++k) {
        locaterecord(in, tempfile, k, tempfirstfield);
        const fieldlocation record = {in.nextlocation.line, 1};
        readrecord(in, wirecolumns);
        drawrecord(elementkind, anycode, in, record);
    }
    in.close();
    deletetemporary(tempfile);
}

void showfirstlist(control& list) {
    show(escapefilelistbtn);
    show(selectgirderfile);
    refresh(list);
    show(list);
    show(autohintbox);
}

template <class formatter>
void loadfirst(const replayfile& file, formatter line) {
    firstfilename = file.name;
    combinedcount = 0;
    addfile(file, line);
}

template <class formatter>
void loadsecond(const replayfile& file, formatter line) {
    secondfilename = file.name;
    addfile(file, line);
}

template <class formatter>
void pickfirst(control& list, control& secondlist, formatter line) {
    hide(escapefilelistbtn);
    hide(list);
    hide(selectgirderfile);
    selectedbox.text = "You selected:  " + selectedtext(list);
    show(selectedbox);
    loadfirst(pickedfile(list), line);
    show(selectpanelfile);
    refresh(secondlist);
    show(secondlist);
}

// Hides the second list and its prompts, and returns the file picked in it.
replayfile leavesecond(control& list) {
    hide(selectedbox);
    hide(list);
    hide(selectpanelfile);
    hide(autohintbox);
    return pickedfile(list);
}

// Replays the records of both files in tempfile solid, farthest first. reads: combinedcount.
void replaysorted() {
    const int n = indexof(combinedcount, "combinedcount", 2 * lastrecord);
    loadbothfiles(n);
    makeeyeabsolute();
    measurerecords(n);
    sortrecords(rdnumber, n);
    addlines(sortedtempfile, n, sortedline, sortedorigin);
    drawprogress(n);
    paintrecords(sortedtempfile, tempfirstfield, n, solidcolumns, elementkind, anycode);
    deletetemporary(tempfile);
    deletetemporary(sortedtempfile);
    hide(progressbar);
}

}  // namespace

void clickautowirebtn() { showfirstlist(autofile1); }

void clickautosolidbtn() { showfirstlist(autofile3); }

void pickautofile1() { pickfirst(autofile1, autofile2, wireline); }

void pickautofile3() { pickfirst(autofile3, autofile4, solidline); }

void pickautofile2() {
    loadsecond(leavesecond(autofile2), wireline);
    replaycombined();
}

void pickautofile4() {
    loadsecond(leavesecond(autofile4), solidline);
    replaysorted();
}

void replaypairsolid(const replayfile& first, const replayfile& second) {
    loadfirst(first, solidline);
    loadsecond(second, solidline);
    replaysorted();
}

bool awaitssecondfile() { return autofile2.shown || autofile4.shown; }

}  // namespace tessaly

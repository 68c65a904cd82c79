// The girder and panel file reader. Its one trap is spent on the end of the design file; after that every failure ends
// the program. It never sets panelcode, so the painter's fineness follows the panel that was chosen or replayed before.

#include "building/combinedreader.h"

#include "building/designfiles.h"
#include "building/records.h"
#include "building/replay.h"
#include "core/controls.h"
#include "core/textfiles.h"

namespace tessaly {

namespace {

// Puts the record tables back before a design file is read.
void clearrecords() {
    for (int i = 1; i <= lastrecord; ++i) {
        for (auto* number : {&rdnumber, &rdroofnumber, &rdgirdernumber, &rdpanelnumber}) number->set(i, 0);
        rdkind.set(i, "");
    }
}

const std::vector<recordcolumn> bothcolumns =
    designcolumns({nullptr, &rdnumber}, {&girdercode, &rdcode}, {nullptr, &rdtrailer});

// The twelve recordcolumns of the temporary files: a design record's ten before its trailer between these two.
std::vector<recordcolumn> tempcolumns(recordcolumn first, recordcolumn last) {
    std::vector<recordcolumn> all = designcolumns({&anynumber, &rdnumber}, {&anycode, &rdcode}, last);
    all.insert(all.begin(), first);
    return all;
}
const std::vector<recordcolumn> wirecolumns = tempcolumns({&placez, nullptr}, {nullptr, &rdtrailer});
const std::vector<recordcolumn> solidcolumns = tempcolumns({}, {&placez, &rdplacez});

constexpr int tempfirstfield = 0;  // the record's fields follow the line's first one

// A line for the temporary files, of record r in the tables.
std::string templine(const value& first, const value& r, const value& last) {
    return keptline(first, recordcolumns(bothcolumns).first(bothcolumns.size() - 1), r, last);
}
std::string wireline(int i) { return templine(placez, i, rdtrailer[i]); }
std::string solidline(int i) { return templine(i, i, placez); }
std::string sortedline(int slot) { return templine(slot, rdorder[slot], rdplacez[rdorder[slot]]); }

recordorigin sortedorigin(int slot) {
    const auto record = static_cast<std::size_t>(double(rdorder[slot]));
    return record - 1 < tempfile.origins.size() ? tempfile.origins[record - 1] : recordorigin{};
}

// Reads a design file into the record tables, and adds its records to combinedcount and to tempfile.
template <class form>
void addfile(const replayfile& file, form line) {
    clearrecords();
    const std::vector<recordorigin> records = keepdesignfile(1, file.name, bothcolumns);
    const int n = static_cast<int>(records.size());
    combinedcount = combinedcount + n;
    floorfromname(file.floorby);
    addlines(tempfile, n, line, [&records](int i) { return records[static_cast<std::size_t>(i - 1)]; });
}

// Both files from tempfile into the record tables, which end at 1000. The scalars are left for the sorted order.
void keepbothfiles(int n) {
    std::vector<recordcolumn> keptonly = solidcolumns;
    for (recordcolumn& c : keptonly) c.scalar = nullptr;
    textinput& in = opentemporary(tempfile);
    for (int k = 1; k <= n; ++k) {
        locaterecord(in, tempfile, k, tempfirstfield);
        keeprecord(k, keptonly, readrecord(in, keptonly));
    }
    in.close();
}

// Draws the records of tempfile as wires, the first file's and then the second's. reads: combinedcount.
void replaycombined() {
    const int n = indexof(combinedcount, "combinedcount", 2 * lastrecord);
    textinput& in = opentemporary(tempfile);
    for (int k = 1; k <= n; ++k) {
        locaterecord(in, tempfile, k, tempfirstfield);
        const fieldlocation record = {in.next.line, 1};
        readrecord(in, wirecolumns);
        drawrecord(elementkind, anycode, in, record);
    }
    in.close();
    deletetemporary(tempfile);
}

void offerfirst(control& list) {
    show(escapefilelistbtn);
    show(selectgirderfile);
    refresh(list);
    show(list);
    show(autohintbox);
}

template <class form>
void takefirst(const replayfile& file, form line) {
    firstfilename = file.name;
    combinedcount = 0;
    addfile(file, line);
}

template <class form>
void takesecond(const replayfile& file, form line) {
    secondfilename = file.name;
    addfile(file, line);
}

template <class form>
void pickfirst(control& list, control& secondlist, form line) {
    hide(escapefilelistbtn);
    hide(list);
    hide(selectgirderfile);
    selectedbox.text = "You selected:  " + selectedtext(list);
    show(selectedbox);
    takefirst(pickedfile(list), line);
    show(selectpanelfile);
    refresh(secondlist);
    show(secondlist);
}

// Hides the second list and its prompts. Returns the file picked in it.
replayfile leavesecond(control& list) {
    hide(selectedbox);
    hide(list);
    hide(selectpanelfile);
    hide(autohintbox);
    return pickedfile(list);
}

// Replays both files of tempfile solid. reads: combinedcount.
void replaysorted() {
    const int n = indexof(combinedcount, "combinedcount", 2 * lastrecord);
    keepbothfiles(n);
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

void clickautowirebtn() { offerfirst(autofile1); }

void clickautosolidbtn() { offerfirst(autofile3); }

void pickautofile1() { pickfirst(autofile1, autofile2, wireline); }

void pickautofile3() { pickfirst(autofile3, autofile4, solidline); }

void pickautofile2() {
    takesecond(leavesecond(autofile2), wireline);
    replaycombined();
}

void pickautofile4() {
    takesecond(leavesecond(autofile4), solidline);
    replaysorted();
}

void replaypairsolid(const replayfile& first, const replayfile& second) {
    takefirst(first, solidline);
    takesecond(second, solidline);
    replaysorted();
}

bool awaitssecondfile() { return autofile2.shown || autofile4.shown; }

}  // namespace tessaly

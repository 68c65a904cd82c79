// The girder and panel file reader. A failure while it reads a design file ends that file; any other failure ends the
// program. The reader does not set panelcode, so the painter's line density remains that of the last panel that was
// chosen or replayed by the single file reader.

#include "building/combinedreader.h"

#include "building/designfiles.h"
#include "building/records.h"
#include "building/replay.h"
#include "core/controls.h"
#include "core/textfiles.h"

namespace tessaly {

namespace {

// Clears the element numbers and kinds of the record tables.
void clearrecords() {
    for (int i = 1; i <= lastrecord; ++i) {
        for (auto* number : {&rdnumber, &rdroofnumber, &rdgirdernumber, &rdpanelnumber}) number->set(i, 0);
        rdkind.set(i, "");
    }
}

const std::vector<recordcolumn> designfilecolumns =
    designcolumns({nullptr, &rdnumber}, {&girdercode, &rdcode}, {nullptr, &rdtrailer});

// Returns the twelve columns of the temporary files: first, the columns of a design record without its trailer, and
// last.
std::vector<recordcolumn> temporarycolumns(recordcolumn first, recordcolumn last) {
    std::vector<recordcolumn> all = designcolumns({&anynumber, &rdnumber}, {&anycode, &rdcode}, last);
    all.insert(all.begin(), first);
    return all;
}
const std::vector<recordcolumn> wirecolumns = temporarycolumns({&placez, nullptr}, {nullptr, &rdtrailer});
const std::vector<recordcolumn> solidcolumns = temporarycolumns({}, {&placez, &rdplacez});

const recordcolumns columnswithouttrailer = recordcolumns(designfilecolumns).first(recordlength - 1);

// Format record i of the tables as a line of tempfile.
using lineformatter = std::string (*)(int i);
std::string wireline(int i) { return formatrecord(placez, columnswithouttrailer, i, rdtrailer[i]); }
std::string solidline(int i) { return formatrecord(i, columnswithouttrailer, i, placez); }

// Reads a design file into the record tables and appends its records to tempfile. Adds their number to combinedcount,
// and stores the name of the file in filename.
void addfile(const replayfile& file, value& filename, lineformatter line) {
    filename = file.name;
    clearrecords();
    const std::vector<recordorigin> records = loaddesignfile(1, file.name, designfilecolumns);
    combinedcount = combinedcount + static_cast<double>(records.size());
    floorfromname(file);
    appendtemporary(tempfile, records, line);
}

void addfirstfile(const replayfile& file, lineformatter line) {
    combinedcount = 0;
    addfile(file, firstfilename, line);
}

void showfirstlist(control& list) {
    show(escapefilelistbtn);
    show(selectgirderfile);
    refresh(list);
    show(list);
    show(autohintbox);
}

void pickfirst(control& list, control& secondlist, lineformatter line) {
    hide(escapefilelistbtn);
    hide(list);
    hide(selectgirderfile);
    selectedbox.text = "You selected:  " + selectedtext(list);
    show(selectedbox);
    addfirstfile(pickedfile(list), line);
    show(selectpanelfile);
    refresh(secondlist);
    show(secondlist);
}

// Hides the second list and its prompts, and returns the file picked in it.
replayfile acceptsecondfile(control& list) {
    hide(selectedbox);
    hide(list);
    hide(selectpanelfile);
    hide(autohintbox);
    return pickedfile(list);
}

// Draws the first combinedcount records of tempfile as a wireframe.
void replaycombined() {
    readtemporary(tempfile, static_cast<int>(combinedcount), wirecolumns,
                  [](int, const auto&, const textinput& in, fieldlocation record) {
                      loadrecordelement(elementkind, anycode, in, record);
                  });
    deletetemporary(tempfile);
}

// Paints the first combinedcount records of tempfile, farthest first. Fails with subscript out of range at record
// 1001.
void replaycombinedsolid() {
    const int n = static_cast<int>(combinedcount);
    readtemporary(tempfile, n, solidcolumns, [](int k, const std::vector<value>& fields, const auto&, auto) {
        storerecord(k, solidcolumns, fields);
    });
    paintsorted(sortedtempfile, n, solidcolumns, rdnumber, elementkind, anycode, tempfile.origins);
    deletetemporary(tempfile);
}

}  // namespace

void clickautowirebtn() { showfirstlist(autofile1); }

void clickautosolidbtn() { showfirstlist(autofile3); }

void pickautofile1() { pickfirst(autofile1, autofile2, wireline); }

void pickautofile3() { pickfirst(autofile3, autofile4, solidline); }

void pickautofile2() {
    addfile(acceptsecondfile(autofile2), secondfilename, wireline);
    replaycombined();
}

void pickautofile4() {
    addfile(acceptsecondfile(autofile4), secondfilename, solidline);
    replaycombinedsolid();
}

void replaypairsolid(const replayfile& first, const replayfile& second) {
    addfirstfile(first, solidline);
    addfile(second, secondfilename, solidline);
    replaycombinedsolid();
}

bool awaitssecondfile() { return autofile2.shown || autofile4.shown; }

}  // namespace tessaly

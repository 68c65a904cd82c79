// The girder and panel file reader. Its one trap is spent on the end of the design file; after that every failure ends
// the program. It never sets panelcode, so the painter's fineness follows the panel that was chosen or replayed before.

#include "building/combinedreader.h"

#include "building/designfiles.h"
#include "building/replay.h"
#include "core/channels.h"
#include "core/controls.h"
#include "render/painter.h"

namespace tessaly {

namespace {

// Puts the record tables back before a design file is read.
void clearrecords() {
    for (int i = 1; i <= lastrecord; ++i) {
        for (auto* number : {&rdnumber, &rdroofnumber, &rdgirdernumber, &rdpanelnumber}) number->set(i, 0);
        rdkind.set(i, "");
    }
}

// Reads a design file into the record tables, adds its records to combinedcount and returns how many they are.
int keepfile(const value& name) {
    openinput(1, designpath(name), "design file");
    const int n = untilfailure(lastrecord, [](int i) {
        value number, x, y, trailer;
        readrecord(1,
                   {&elementkind, &number, &x, &y, &girdercode, &rotx, &rotz, &placex, &placey, &facecode, &trailer});
        rdkind.set(i, elementkind);
        rdtrailer.set(i, trailer);
        rdnumber.set(i, number);
        rdx.set(i, x);
        rdy.set(i, y);
        rdcode.set(i, girdercode);
        rdrotx.set(i, rotx);
        rdrotz.set(i, rotz);
        rdplacex.set(i, placex);
        rdplacey.set(i, placey);
        rdface.set(i, facecode);
    });
    closechannel(1);
    combinedcount = combinedcount + n;
    return n;
}

// A record for the temporary files: first, the design record's fields less its trailer, last.
std::string combinedline(const value& first, const value& r, const value& last) {
    return recordline({first, rdkind[r], rdnumber[r], rdx[r], rdy[r], rdcode[r], rdrotx[r], rdrotz[r], rdplacex[r],
                       rdplacey[r], rdface[r], last});
}

// line(i): record i in the form of the mode.
template <class form>
void addtotempfile(int n, form line) {
    openappend(2, tempfile, "temporary file");
    for (int i = 1; i <= n; ++i) writetext(2, line(i));
    closechannel(2);
}

std::string wireline(int i) { return combinedline(placez, i, rdtrailer[i]); }
std::string solidline(int i) { return combinedline(i, i, placez); }

// Both files from tempfile into the record tables, which end at 1000.
void keepbothfiles(int n) {
    openinput(2, tempfile, "temporary file");
    for (int k = 1; k <= n; ++k) {
        value index, kind, number, x, y, code, turnx, turnz, offsetx, offsety, face, floorheight;
        readrecord(2, {&index, &kind, &number, &x, &y, &code, &turnx, &turnz, &offsetx, &offsety, &face, &floorheight});
        rdkind.set(k, kind);
        rdnumber.set(k, number);
        rdx.set(k, x);
        rdy.set(k, y);
        rdcode.set(k, code);
        rdrotx.set(k, turnx);
        rdrotz.set(k, turnz);
        rdplacex.set(k, offsetx);
        rdplacey.set(k, offsety);
        rdface.set(k, face);
        rdplacez.set(k, floorheight);
    }
    closechannel(2);
}

void writesorted(int n) {
    openappend(2, sortedtempfile, "temporary file");
    for (int slot = 1; slot <= n; ++slot) {
        const value& r = rdorder[slot];
        writetext(2, combinedline(slot, r, rdplacez[r]));
    }
    closechannel(2);
}

void paintsorted(int n) {
    openinput(2, sortedtempfile, "temporary file");
    for (int k = 1; k <= n; ++k) {
        value position, x, y;
        readrecord(2, {&position, &elementkind, &anynumber, &x, &y, &anycode, &rotx, &rotz, &placex, &placey, &facecode,
                       &placez});
        stepprogress();
        drawrecord(elementkind, anycode);
        paintsolids();
    }
    closechannel(2);
    deletefile(tempfile);
    deletefile(sortedtempfile);
}

// Draws the records of tempfile as wires, the first file's and then the second's. reads: combinedcount.
void replaycombined() {
    const int n = indexof(combinedcount, "combinedcount");
    openinput(2, tempfile, "temporary file");
    for (int k = 1; k <= n; ++k) {
        value x, y, trailer;
        readrecord(2, {&placez, &elementkind, &anynumber, &x, &y, &anycode, &rotx, &rotz, &placex, &placey, &facecode,
                       &trailer});
        drawrecord(elementkind, anycode);
    }
    closechannel(2);
    deletefile(tempfile);
}

void offerfirst(control& list) {
    show(escapefilelistbtn);
    show(selectgirderfile);
    refresh(list);
    show(list);
    show(autohintbox);
}

template <class form>
void takefirst(control& list, control& secondlist, form line) {
    firstfilename = selectedtext(list);
    hide(escapefilelistbtn);
    hide(list);
    hide(selectgirderfile);
    selectedbox.text = "You selected:  " + firstfilename.text();
    show(selectedbox);
    clearrecords();
    combinedcount = 0;
    const int n = keepfile(firstfilename);
    floorfromname(firstfilename.text());
    addtotempfile(n, line);
    show(selectpanelfile);
    refresh(secondlist);
    show(secondlist);
}

template <class form>
void takesecond(control& list, form line) {
    secondfilename = selectedtext(list);
    hide(selectedbox);
    hide(list);
    hide(selectpanelfile);
    hide(autohintbox);
    clearrecords();
    const int n = keepfile(secondfilename);
    floorfromname(secondfilename.text());
    addtotempfile(n, line);
}

}  // namespace

void clickautowirebtn() { offerfirst(autofile1); }

void clickautosolidbtn() { offerfirst(autofile3); }

void pickautofile1() { takefirst(autofile1, autofile2, wireline); }

void pickautofile3() { takefirst(autofile3, autofile4, solidline); }

void pickautofile2() {
    takesecond(autofile2, wireline);
    replaycombined();
}

void pickautofile4() {
    takesecond(autofile4, solidline);
    const int n = indexof(combinedcount, "combinedcount");
    keepbothfiles(n);
    makeeyeabsolute();
    measurerecords(n);
    sortrecords(rdnumber, n);
    writesorted(n);
    drawprogress(n);
    paintsorted(n);
    hide(progressbar);
}

}  // namespace tessaly

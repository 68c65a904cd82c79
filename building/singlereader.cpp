// The single file reader. The class of a file is told by its name, and the class decides how a record's code is read;
// the record's own kind reaches nothing but the solid painter.

#include "building/singlereader.h"

#include "building/designfiles.h"
#include "building/replay.h"
#include "core/channels.h"
#include "core/controls.h"
#include "render/painter.h"

namespace tessaly {

namespace {

constexpr int mostwirerecords = 10000;

// What the three classes of design files keep apart.
struct recordclass {
    const char* prefix;  // of the file's name
    const char* kind;
    value& code;  // of the record just read
    table<value, lastrecord>&numbers, &codes;
    bool keepstrailer;  // a roof's is not kept: its temporary record carries what stood in rdtrailer before
};

const recordclass classes[] = {
    // clang-format off
    {"gird", "girder", girdercode, rdgirdernumber, rdgirdercode, true},
    {"pane", "panel",  panelcode,  rdpanelnumber,  rdpanelcode,  true},
    {"roof", "roof",   roofcode,   rdroofnumber,   rdroofcode,   false},
    // clang-format on
};

const recordclass& classof(const std::string& name) {
    for (const recordclass& c : classes)
        if (name.substr(0, 4) == c.prefix) return c;
    throw failure(failurekind::typemismatch, "the name " + name + " tells no class of design file");
}

// A record's fields that have no place of their own in the world.
struct recordrest {
    value number, x, y, trailer;
};

void readdesignrecord(const recordclass& c, recordrest& r) {
    readrecord(2,
               {&elementkind, &r.number, &r.x, &r.y, &c.code, &rotx, &rotz, &placex, &placey, &facecode, &r.trailer});
}

void keeprecord(const recordclass& c, int i, const recordrest& r) {
    c.numbers.set(i, r.number);
    rdx.set(i, r.x);
    rdy.set(i, r.y);
    c.codes.set(i, c.code);
    rdrotx.set(i, rotx);
    rdrotz.set(i, rotz);
    rdplacex.set(i, placex);
    rdplacey.set(i, placey);
    rdface.set(i, facecode);
    rdkind.set(i, elementkind);
    if (c.keepstrailer) rdtrailer.set(i, r.trailer);
}

// The design file's records into the tables; returns how many there are.
int keeprecords(const recordclass& c) {
    for (int i = 1; i <= lastrecord; ++i) c.numbers.set(i, 0);
    openinput(2, designpath(secondfilename), "design file");
    const int n = untilfailure(lastrecord, [&c](int i) {
        recordrest rest;
        readdesignrecord(c, rest);
        keeprecord(c, i, rest);
    });
    closechannel(2);
    return n;
}

void writesorted(const recordclass& c, int n) {
    openappend(2, tempfile, "temporary file");
    for (int slot = 1; slot <= n; ++slot) {
        const value& r = rdorder[slot];
        writetext(2, recordline({slot, c.numbers[r], rdx[r], rdy[r], c.codes[r], rdrotx[r], rdrotz[r], rdplacex[r],
                                 rdplacey[r], rdface[r], rdtrailer[r]}));
    }
    closechannel(2);
}

void paintsorted(const recordclass& c, int n) {
    openinput(2, tempfile, "temporary file");
    for (int k = 1; k <= n; ++k) {
        value position;
        recordrest r;
        readrecord(2,
                   {&position, &r.number, &r.x, &r.y, &c.code, &rotx, &rotz, &placex, &placey, &facecode, &r.trailer});
        stepprogress();
        drawrecord(c.kind, c.code);
        paintsolids();
    }
    closechannel(2);
    deletefile(tempfile);
}

void offer(control& list) {
    show(escapefilelistbtn);
    refresh(list);
    show(list);
}

// The first steps of both replays: the name and what it tells. reads: the list; writes: secondfilename, floor.
const recordclass& takename(control& list) {
    secondfilename = selectedtext(list);
    hide(list);
    hide(escapefilelistbtn);
    floorfromname(secondfilename.text());
    return classof(secondfilename.text());
}

}  // namespace

void clickautowiresingle() { offer(autofile); }

void clickautosolidsingle() { offer(autofile5); }

void pickautofile() {
    const recordclass& c = takename(autofile);
    openinput(2, designpath(secondfilename), "design file");
    untilfailure(mostwirerecords, [&c](int) {
        recordrest rest;
        readdesignrecord(c, rest);
        drawrecord(c.kind, c.code);
    });
    closechannel(2);
}

void pickautofile5() {
    const recordclass& c = takename(autofile5);
    const int n = keeprecords(c);
    makeeyeabsolute();
    measurerecords(n);
    sortrecords(c.numbers, n);
    writesorted(c, n);
    drawprogress(n);
    paintsorted(c, n);
    hide(autofile5);
    hide(progressbar);
}

}  // namespace tessaly

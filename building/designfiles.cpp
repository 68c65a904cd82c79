// Writes the records of clicks, and sets the values of a click again from a record's code and a file's name.

#include "building/designfiles.h"

#include "building/buildstate.h"
#include "building/buttonfamilies.h"
#include "building/records.h"
#include "core/characters.h"
#include "core/failure.h"
#include "core/textfiles.h"

namespace tessaly {

namespace {

constexpr int recordtrailer = 64;

// Returns a code as a number. For a text, even one that looks like a number, returns 0, which no girder or panel has.
double codenumber(const value& code) { return code.isnumber() ? double(code) : 0; }

void setpanelfile(double code) {
    for (const paneltype& t : paneltypes)
        for (std::size_t snip = 0; snip < std::size(sniptypes); ++snip)
            if (t.codes[snip] == code) datafile = std::string(t.prefix) + sniptypes[snip].nameinfix + ".txt";
}

}  // namespace

std::string designpath(const value& name) { return "designs\\" + name.text(); }

void recordelement(const fileclass& files, int number, int x, int y, const value& code) {
    textoutput& out = openappend(1, designpath(recordfile(files, floorname)), "design file");
    out.write(recordline({elementkind, number, x, y, code, rotx, rotz, placex, placey, facecode, recordtrailer}));
    out.close();
}

std::string recordfile(const fileclass& files, const value& onfloor) {
    return std::string(files.stem) + onfloor.text() + ".txt";
}

void elementfileforcode(const value& kind, const value& code) {
    const double number = codenumber(code);
    for (const buttonfamily& f : allbuttonfamilies()) {
        if (!kind.is(f.files.kind) || (&f.files == &girderfiles && f.code != number)) continue;
        placemode = f.placemode;
        if (*f.datafile) datafile = f.datafile;
    }
    if (kind.is(panelfiles.kind)) setpanelfile(number);
}

void elementfilefailure(const value& kind, const value& code, const textinput& in, fieldlocation record) {
    constexpr int codefield = 4;  // fields from the kind to the code
    const bool girder = kind.is("girder"), hascode = girder || kind.is("panel");
    const value& wrong = hascode ? code : kind;
    if (hascode) record.field += codefield;
    throw failure(failurekind::invalidcall,
                  (wrong.isnumber() ? wrong.text() : '"' + excerpt(wrong.text()) + '"') + " is not " +
                      (girder    ? "the code of a girder (41, 42, 43)"
                       : hascode ? "the code of a panel (1 to 24, 31 to 38)"
                                 : "a kind of element (girder, panel, roof)"),
                  in.location(record));
}

int floordigit(const std::string& name) {
    const fileclass* const found = classofname(name);
    const std::string_view start = firstcharacters(name, found ? found->stem.size() + 1 : 0);
    const char last = start.empty() ? ' ' : start.back();
    return last < '0' || last > '9' ? -1 : last - '0';
}

replayfile pickedfile(const control& filelist) { return {selectedtext(filelist), floordigit(selectedtext(filelist))}; }

const fileclass& floorfromname(const replayfile& file) {
    if (file.digit < 0)
        throw failure(
            failurekind::typemismatch, "no reader knows this name", shortpath(designpath(file.name)),
            "rename it like girders1.txt, panels1.txt or roofs1.txt, with the same first four letters, the same "
            "length, and the floor's digit in the place of the 1");
    floornum = file.digit;
    setfloor(file.digit == 0 ? 10 : file.digit);
    return *classofname(file.name);
}

}  // namespace tessaly

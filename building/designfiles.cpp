// Design files: writing a record, and turning codes and names back into what the click had set.

#include "building/designfiles.h"

#include "building/buildstate.h"
#include "building/records.h"
#include "core/controls.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/windows1252.h"
#include "core/world.h"

namespace tessaly {

namespace {

constexpr int recordtrailer = 64;

struct panelrow {
    const char* prefix;
    int codes[4];  // full, left, righ, both
};
constexpr const char* panelparts[4] = {"full", "left", "righ", "both"};  // four letters each, "righ" on purpose
constexpr panelrow panelrows[] = {
    // clang-format off
    {"st-panels-1or-",   { 1,  2,  3, 31}},
    {"st-panels-2or-",   { 4,  5,  6, 32}},
    {"st-panels-3or-",   { 7,  8,  9, 33}},
    {"st-panels-1yel-",  {10, 11, 12, 34}},
    {"st-panels-2yel-",  {13, 14, 15, 35}},
    {"st-panels-3yel-",  {16, 17, 18, 36}},
    {"st-panels-2door-", {19, 20, 21, 37}},
    {"st-panels-4door-", {22, 23, 24, 38}},
    // clang-format on
};

struct girderrow {
    int code, mode;
    const char* file;
};
constexpr girderrow girderrows[] = {{41, 2, "st-post.txt"}, {42, 3, "st-beam.txt"}, {43, 4, "st-beam.txt"}};

// The code as a number; 0, the code of no element, for a text, whatever it looks like.
double codenumber(const value& code) { return code.isnumber() ? double(code) : 0; }

void panelfile(double code) {
    for (const panelrow& row : panelrows)
        for (int part = 0; part < 4; ++part)
            if (row.codes[part] == code) datafile = std::string(row.prefix) + panelparts[part] + ".txt";
}

// The first n characters of a UTF-8 text.
std::string_view firstcharacters(std::string_view text, int n) {
    std::size_t end = 0;
    for (; n > 0 && end < text.size(); --n) {
        ++end;
        while (end < text.size() && continuescharacter(text[end])) ++end;
    }
    return text.substr(0, end);
}

}  // namespace

void recordelement(const char* family, int number, int x, int y, const value& code) {
    textoutput& out = openappend(1, designpath(recordfile(family, floorname)), "design file");
    out.write(recordline({elementkind, number, x, y, code, rotx, rotz, placex, placey, facecode, recordtrailer}));
    out.close();
}

std::string recordfile(const char* family, const value& floorsname) { return family + floorsname.text() + ".txt"; }

int panelcodefor(const std::string& prefix, const std::string& part) {
    for (const panelrow& row : panelrows)
        for (int p = 0; p < 4; ++p)
            if (prefix == row.prefix && part == panelparts[p]) return row.codes[p];
    return 0;
}

void elementfileforcode(const value& kind, const value& code) {
    if (kind.is("girder")) {
        for (const girderrow& row : girderrows) {
            if (row.code != codenumber(code)) continue;
            placemode = row.mode;
            datafile = row.file;
        }
    } else if (kind.is("panel")) {
        placemode = 1;
        panelfile(codenumber(code));
    } else if (kind.is("roof")) {
        placemode = 5;
        datafile = "st-roof.txt";
    }
}

void noelementfile(const value& kind, const value& code, const textinput& in, fieldlocation record) {
    constexpr int codefield = 4;  // after the record's first, its kind
    const bool girder = kind.is("girder"), known = girder || kind.is("panel");
    const value& wrong = known ? code : kind;
    if (known) record.field += codefield;
    throw failure(failurekind::invalidcall,
                  (wrong.isnumber() ? wrong.text() : '"' + excerpt(wrong.text()) + '"') + " is not " +
                      (girder  ? "the code of a girder (41, 42, 43)"
                       : known ? "the code of a panel (1 to 24, 31 to 38)"
                               : "a kind of element (girder, panel, roof)"),
                  in.location(record));
}

int floordigit(const std::string& name) {
    const std::string letters = name.substr(0, 4);
    const int length = letters == "gird" ? 8 : letters == "pane" ? 7 : letters == "roof" ? 6 : 0;
    const std::string_view stem = firstcharacters(name, length);
    const char digit = stem.empty() ? ' ' : stem.back();
    return digit < '0' || digit > '9' ? -1 : digit - '0';
}

replayfile pickedfile(const control& filelist) { return {selectedtext(filelist), selectedtext(filelist)}; }

void floorfromname(const std::string& name) {
    const int digit = floordigit(name);
    if (digit < 0)
        throw failure(
            failurekind::typemismatch, "no reader knows this name", shortpath(designpath(name)),
            "rename it like girders1.txt, panels1.txt or roofs1.txt, with the same first four letters, the same "
            "length, and the floor's digit in the place of the 1");
    floornum = digit;
    setfloor(floornum == 0 ? value(10) : floornum);
}

}  // namespace tessaly

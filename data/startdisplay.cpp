// Shows each start group with the reader of its file. drawset is not set here: it is empty when the program has just
// started, so block 2 of an axis-cube file is not made relative to the focus. This is intended.

#include "data/startdisplay.h"

#include "core/fields.h"
#include "core/textfiles.h"
#include "core/viewvalues.h"
#include "data/cubes.h"
#include "data/elements.h"
#include "render/redraw.h"

namespace tessaly {

namespace {

constexpr const char* presetkeys[] = {
    "HighZ(full)",  "HighZ(zoom)",  "FarX(full)",   "FarX(zoom)",   "FarY(full)",   "FarY(zoom)",
    "Perspective1", "Perspective2", "Perspective3", "Perspective4", "Perspective5", "Perspective6",
};
constexpr int viewvaluecount = std::size(viewvalues);

void readdefaultview(textinput& in) {
    findkey(in, "DEFAULTVIEW:");
    for (const viewvalue& v : viewvalues) v.variable = readvalue(in, "a number of DEFAULTVIEW:");
}

// Reads a preset into viewpreset, starting at index first. Stores its eye relative to its focus.
void readpreset(textinput& in, const char* key, int first) {
    findkey(in, key);
    for (int i = 0; i < viewvaluecount; ++i) viewpreset.set(first + i, readvalue(in, "a number of a view preset"));
    for (int i = 0; i < 3; ++i) viewpreset.set(first + i, viewpreset[first + i] - viewpreset[first + 3 + i]);
}

value readtextafter(textinput& in, const char* key) {
    findkey(in, key);
    return value(readtextfield(in, key));
}

void readstartfile() {
    textinput& in = openinput(1, "datah\\start.txt", "start file");
    readdefaultview(in);
    for (int preset = 0; const char* key : presetkeys) readpreset(in, key, 1 + viewvaluecount * preset++);
    palname = readtextafter(in, "DEFAULTPAL:");
    findkey(in, "BACKGROUNDCOLOR:");
    for (value* v : {&backred, &backgreen, &backblue}) *v = readvalue(in, "a component of BACKGROUNDCOLOR:");
    startgroup1 = readtextafter(in, "DISPLAYSTARTGROUP1:");
    startgroup2 = readtextafter(in, "DISPLAYSTARTGROUP2:");
    startgroup3 = readtextafter(in, "DISPLAYSTARTGROUP3:");
    in.close();
}

// Reads the file of a start group with the reader that its prefix selects, and shows it. If the prefix selects no
// reader, only runs the script of the file. groupindex: 0..2.
void showgroup(const value& name, int groupindex) {
    struct reader {
        const char* prefix;
        int readernumber;  // value of preopened
        void (*read)();
    };
    static constexpr reader readers[] = {
        {"st", 1, readelements}, {"ax", 2, readcubex}, {"ay", 3, readcubey}, {"az", 4, readcubez}};
    openinput(1, "datah\\" + name.text() + ".txt", "start group");
    startprefix = name.text().substr(0, 2);
    startstep = groupindex;
    for (const reader& r : readers) {
        if (!startprefix.is(r.prefix)) continue;
        preopened = r.readernumber;
        r.read();
    }
    showscene();
}

}  // namespace

void startdisplay() {
    if (startdone != 1) {
        readstartfile();
        clearpicture();
    }
    int groupindex = 0;
    for (const value* name : {&startgroup1, &startgroup2, &startgroup3}) showgroup(*name, groupindex++);
}

}  // namespace tessaly

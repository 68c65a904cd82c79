// Axis-cube files: seven sections, each with its own first point and quad, in pairs of one line group. A row of more
// than a hundred cubes runs on into the next section's slots, which overwrites them without notice.

#include "data/cubes.h"

#include "core/channels.h"
#include "core/controls.h"
#include "core/failure.h"
#include "core/fields.h"
#include "core/world.h"
#include "data/elements.h"
#include "data/transforms.h"

namespace tessaly {

namespace {

enum axis { alongx, alongy, alongz };

// A section of one cube row: the number of its first cube, its first point and quad.
struct section {
    const char* key;
    int base, first;
};
constexpr section rows[] = {
    // clang-format off
    {"AUTOCUBE000:",   0,    1},
    {"AUTOCUBE100:", 100, 1001},
    {"AUTOCUBE200:", 200, 2001},
    {"AUTOCUBE300:", 300, 3001},
    {"AUTOCUBE400:", 400, 4001},
    {"AUTOCUBE500:", 500, 5001},
    // clang-format on
};
constexpr int singlesfirst = 600, mostsingles = 100, singlespoint = 6001;

void readcuberow(axis stepped, int base, cubeslots& next) {
    value corner[6];
    for (value& v : corner) v = readvalue(1, "a corner coordinate of a cube row");
    const value step = readvalue(1, "the step of a cube row");
    const value last = readvalue(1, "the last cube's number of a cube row");
    rowgrade = readvalue(1, "the grade of a cube row");
    rowcolour = readvalue(1, "the colour of a cube row");

    value &first = corner[stepped], &second = corner[stepped + 3];
    first = first - step;
    second = second - step;
    for (int c = base; c <= last; ++c) {
        first = first + step;
        second = second + step;
        expandcube(next, corner[0], corner[1], corner[2], corner[3], corner[4], corner[5], rowgrade, rowcolour);
    }
}

// Rows of first quad, last quad and count: the same face of each cube of a row, ten slots apart. The end row clears the
// slot at which the walk of the row before it stopped.
void readcubeframing(const char* key, table<value, lastquad, clearedpoints>& framing) {
    findkey(1, key);
    double walked = 0;
    for (;;) {
        skiptofigure(1);
        const int line = channelinput(1).line, field = channelinput(1).field;
        const value first = readvalue(1, "the first quad of a framing row");
        const value last = readvalue(1, "the last quad of a framing row");
        const value count = readvalue(1, "the count of a framing row");
        const bool end = endsrows(count);
        const auto frame = [&] {
            if (end) return framing.set(value(walked), 0);
            for (walked = first; walked <= last; walked += 10) framing.set(value(walked), count);
        };
        tellrow(1, line, field, key, frame);
        if (end) return;
    }
}

template <axis stepped>
void readcubesections() {
    findkey(1, "WIRECOLORS:");
    for (int group = 6; group <= 9; ++group) wirecolour[group] = readvalue(1, "a wire colour (WIRECOLORS:)");

    cubeslots next{1, 1, 1};
    int pairstart = 1;  // first line of the pair of sections being read
    const auto closepair = [&](int group, int block) {
        linecount[group] = next.line - pairstart;
        ptcount[block] = next.point - 1 - (block - 1) * 2000;
        pairstart = next.line;
    };
    for (const section& s : rows) {
        findkey(1, s.key);
        if (s.base == 200) closepair(6, 1);
        if (s.base == 400) closepair(7, 2);
        next.point = next.quad = s.first;
        readcuberow(stepped, s.base, next);
    }
    findkey(1, "AUTOCUBE600:");
    closepair(8, 3);
    next.point = next.quad = singlespoint;
    readcuberows(singlesfirst, mostsingles, next);
    closepair(9, 4);
    readcubeframing("AUTOFRAMING1:", framing1);
    readcubeframing("AUTOFRAMING2:", framing2);
}

bool placecubes() {
    runtransforms();
    return true;
}

}  // namespace

void readcubex() { readshape({2, "axis-cube file", readcubesections<alongx>, placecubes, 2}); }
void readcubey() { readshape({3, "axis-cube file", readcubesections<alongy>, placecubes, 2}); }
void readcubez() { readshape({4, "axis-cube file", readcubesections<alongz>, placecubes, 2}); }

void clickdisplaycubebtn() {
    for (window* layout : {&layoutgirder, &layoutpanels, &layoutroof}) hidewindow(*layout);
    openinput(1, "datah\\az-cube.txt", "axis-cube file");
    preopened = 4;
    readcubez();
    showscene();
}

}  // namespace tessaly

// An axis-cube file has six sections with a row of cubes each and a section of single cubes. Each section has its own
// range of points and quads. The six are read in pairs; a pair shares a line group. A row of more than a hundred cubes
// continues into the range of the next section, which then overwrites the excess cubes silently.

#include "data/cubes.h"

#include "core/failure.h"
#include "core/fields.h"
#include "core/textfiles.h"
#include "core/world.h"
#include "data/elements.h"
#include "data/pointtransforms.h"
#include "data/script.h"

namespace tessaly {

namespace {

// The sections with a row of cubes each. Their first cubes have the numbers 0, 100 .. 500; a cube takes ten points and
// ten quads.
constexpr const char* rowkeys[] = {
    "AUTOCUBE000:", "AUTOCUBE100:", "AUTOCUBE200:", "AUTOCUBE300:", "AUTOCUBE400:", "AUTOCUBE500:"};

constexpr int maxsinglecubes = 100;

// Reads a row and expands its cubes, each one step farther along the axis than the one before.
void readcuberow(textinput& in, axis stepaxis, int firstcube, cubeslots& next) {
    cubediagonal diagonal = readdiagonal(in);
    const value step = readvalue(in, "the step of a cube row");
    const value last = readvalue(in, "the number of the last cube in a row");
    rowgrade = readvalue(in, "the grade of a cube row");
    rowcolour = readvalue(in, "the colour of a cube row");

    value &first = diagonal[stepaxis], &second = diagonal[stepaxis + 3];
    first = first - step;
    second = second - step;
    for (int c = firstcube; c <= last; ++c) {
        first = first + step;
        second = second + step;
        expandcube(next, diagonal, rowgrade, rowcolour);
    }
}

// Reads rows of first quad, last quad and count. Each sets the count for the same face of several cubes: their quads
// are ten slots apart. The end row clears the slot at which the loop of the previous row stopped.
void readcubeframing(textinput& in, const char* key, quadtable& framing) {
    findkey(in, key);
    double slot = 0;
    for (;;) {
        const fieldlocation row = skiptofield(in);
        const value first = readvalue(in, "the first quad of a framing row");
        const value last = readvalue(in, "the last quad of a framing row");
        const value count = readvalue(in, "the count of a framing row");
        const bool end = endsrows(count);
        withrowlocation(in, row, key, [&] {
            if (end) return framing.set(value(slot), 0);
            for (slot = first; slot <= last; slot += 10) framing.set(value(slot), count);
        });
        if (end) return;
    }
}

template <axis stepaxis>
void readcubesections(textinput& in) {
    readwirecolours(in, 6, 9);
    cubeslots next{1, 1, 1};
    int firstcube = 0, pairline = 1;  // the first line of the pair
    for (const char* key : rowkeys) {
        findkey(in, key);
        next.point = next.quad = 10 * firstcube + 1;
        readcuberow(in, stepaxis, firstcube, next);
        firstcube += 100;
        if (firstcube % 200 != 0) continue;  // the first section of a pair
        const int pair = firstcube / 200;
        linecount[pair + 5] = next.line - pairline;
        ptcount[pair] = next.point - 1 - (pair - 1) * 2000;
        pairline = next.line;
    }
    readsinglecubes(in, "AUTOCUBE600:", 600, maxsinglecubes, 9, next.line);
    readcubeframing(in, "AUTOFRAMING1:", framing1);
    readcubeframing(in, "AUTOFRAMING2:", framing2);
}

template <axis stepaxis>
void readcube() {
    constexpr int readernumber = 2 + static_cast<int>(stepaxis);
    if (!loadtables(readernumber, "axis-cube file", readcubesections<stepaxis>)) return;
    runtransforms();
    closeandplot(2);
}

}  // namespace

void readcubex() { readcube<xaxis>(); }
void readcubey() { readcube<yaxis>(); }
void readcubez() { readcube<zaxis>(); }

void displaycube() {
    openinput(1, "datah\\az-cube.txt", "axis-cube file");
    preopened = 4;
    readcubez();
    showscene();
}

}  // namespace tessaly

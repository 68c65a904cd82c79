// Axis-cube files have seven sections. Each has its own first point and quad; two sections share a line group. A row of
// more than a hundred cubes continues into the slots of the next section, silently overwriting them.

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

// Sections that hold a single row of cubes. Their cubes are numbered in hundreds; each cube takes ten points and quads.
constexpr const char* rowkeys[] = {
    "AUTOCUBE000:", "AUTOCUBE100:", "AUTOCUBE200:", "AUTOCUBE300:", "AUTOCUBE400:", "AUTOCUBE500:"};
constexpr int firstsinglecube = 600, maxsinglecubes = 100, firstsinglepoint = 6001;

void readcuberow(textinput& in, axis stepaxis, int base, cubeslots& next) {
    cubediagonal diagonal = readdiagonal(in);
    const value step = readvalue(in, "the step of a cube row");
    const value last = readvalue(in, "the number of the last cube in a row");
    rowgrade = readvalue(in, "the grade of a cube row");
    rowcolour = readvalue(in, "the colour of a cube row");

    value &first = diagonal[stepaxis], &second = diagonal[stepaxis + 3];
    first = first - step;
    second = second - step;
    for (int c = base; c <= last; ++c) {
        first = first + step;
        second = second + step;
        expandcube(next, diagonal, rowgrade, rowcolour);
    }
}

// Each row gives first quad, last quad and count, and sets the count for the same face of every cube in the row, ten
// slots apart. The end row clears the slot where the loop of the previous row stopped.
void readcubeframing(textinput& in, const char* key, table<value, lastquad, clearedpoints>& framing) {
    findkey(in, key);
    double slot = 0;
    for (;;) {
        const fieldlocation row = skiptofield(in);
        const value first = readvalue(in, "the first quad of a framing row");
        const value last = readvalue(in, "the last quad of a framing row");
        const value count = readvalue(in, "the count of a framing row");
        const bool end = endsrows(count);
        const auto frame = [&] {
            if (end) return framing.set(value(slot), 0);
            for (slot = first; slot <= last; slot += 10) framing.set(value(slot), count);
        };
        withrowlocation(in, row, key, frame);
        if (end) return;
    }
}

template <axis stepaxis>
void readcubesections(textinput& in) {
    readwirecolours(in, 6, 9);
    cubeslots next{1, 1, 1};
    int pairstart = 1;  // first line of the pair of sections being read
    const auto closepair = [&](int group, int block) {
        linecount[group] = next.line - pairstart;
        ptcount[block] = next.point - 1 - (block - 1) * 2000;
        pairstart = next.line;
    };
    int base = 0;
    for (const char* key : rowkeys) {
        findkey(in, key);
        if (base == 200) closepair(6, 1);
        if (base == 400) closepair(7, 2);
        next.point = next.quad = 10 * base + 1;
        readcuberow(in, stepaxis, base, next);
        base += 100;
    }
    findkey(in, "AUTOCUBE600:");
    closepair(8, 3);
    next.point = next.quad = firstsinglepoint;
    readsinglecubes(in, firstsinglecube, maxsinglecubes, next);
    closepair(9, 4);
    readcubeframing(in, "AUTOFRAMING1:", framing1);
    readcubeframing(in, "AUTOFRAMING2:", framing2);
}

template <axis stepaxis>
void readcube() {
    constexpr int number = 2 + static_cast<int>(stepaxis);  // of the reader
    if (!readshape(number, "axis-cube file", readcubesections<stepaxis>)) return;
    runtransforms();
    plotshape(2);
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

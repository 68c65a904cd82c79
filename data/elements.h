// Element files: points, lines in five groups, cubes and flat quads of one element, read into the world, placed and
// drawn as wires.
#pragma once

#include "core/textfiles.h"
#include "core/value.h"

#include <array>

namespace tessaly {

// Reads "datah\" + datafile into the world, places it by placemode and plots it; with preopened 1 reads the file open
// on channel 1 up to its framing and returns. reads: datafile, preopened, placemode, placex.., rotx, rotz; writes: the
// world tables, placex, placey, rotx, drawset; draws on viewport; fails: file not found, input past end of file,
// overflow, subscript, type mismatch, division by zero. A failure leaves channel 1 open.
void readelements();

// The placement routines: points 1..100 from the base tables, turned by rotz or rotx degrees and moved to the place.
void rotzplace();   // about Z
void rotxplace();   // about X; leaves radians in rotx
void shiftplace();  // moved only

// What the readers of element files and of axis-cube files keep apart.
struct shapereader {
    int preopened;     // at which the reader finds its file open on channel 1
    const char* role;  // of its file, for reports
    void (*readsections)(textinput& in);
    bool (*place)();  // false: nothing placed it
    int drawset;
};

// Clears the tables, reads a file's sections and, where it opened the file itself, places and plots them.
void readshape(const shapereader& r);

// Ends the reading of a scene whose file was opened for its reader: runs its script, and plots it with the view of a
// new scene. writes: preopened, palette, viewprompt, plotstate and as plotgroups; draws on viewport; fails: as
// readelements.
void showscene();

// Where the next cube goes.
struct cubeslots {
    int point, quad, line;
};

// Two opposite corners of a cube, x, y and z of each, as a row gives them.
using cubecorners = std::array<value, 6>;
cubecorners readcorners(textinput& in);

// Expands a cube into eight points, twelve lines and six faces.
void expandcube(cubeslots& next, const cubecorners& opposite, const value& grade, const value& colour);

// Reads rows of one cube each, up to the end row or maxrows of them, and expands them into the slots from next on.
// writes: cubegrade, cubecolour from firstcube on and what expandcube writes; fails: as readelements.
void readcuberows(textinput& in, int firstcube, int maxrows, cubeslots& next);

}  // namespace tessaly

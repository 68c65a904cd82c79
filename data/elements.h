// Element files: the points, lines, cubes and quads of one element. The readers store them in the world tables, place
// them and draw them as wires.
#pragma once

#include "core/textfiles.h"
#include "core/value.h"

#include <array>

namespace tessaly {

// Reads "datah\" + datafile into the world tables, places it by placemode and plots it. If preopened is 1, the file is
// already open on channel 1: reads it up to the end of its framing sections and returns.
// reads: datafile, preopened, placemode, placex.., rotx, rotz; writes: the world tables, placex, placey, rotx, drawset;
// draws on viewport; fails: file not found, file already open, input past end of file, overflow, subscript, type
// mismatch, division by zero. A failure after the opening leaves channel 1 open.
void readelements();

// Move the points 1..100 from their base positions to placex, placey, placez and rotate them.
// reads: placex.., rotz or rotx; writes: ptx.., basex.., placex and placey (in world units afterwards).
void rotzplace();   // rotates by rotz degrees about Z
void rotxplace();   // rotates by rotx degrees about X; leaves radians in rotx
void shiftplace();  // does not rotate

// ---- steps shared with the readers of axis-cube files ----

// Clears the tables, opens datafile on channel 1 and reads it with readsections. If preopened is readernumber, the file
// is open already. Returns whether it opened the file: the caller then places the element and calls plotshape. role:
// what reports call the file.
bool readshape(int readernumber, const char* role, void (*readsections)(textinput& in));

// Closes the file, sets drawset and plots.
void plotshape(int blocks);

// Finishes a scene whose file the caller opened: runs its script, closes the file, loads the palette and plots.
// writes: preopened, palette, viewprompt, plotstate, and everything plotgroups writes; draws on viewport; fails: as
// readelements.
void showscene();

// Reads the section of the wire colours, which has one for each of the line groups from..to.
void readwirecolours(textinput& in, int from, int to);

// Indexes for the next cube.
struct cubeslots {
    int point, quad, line;
};

// Two opposite corners of a cube in the order of a row: x, y, z of one, then of the other.
using cubediagonal = std::array<value, 6>;
cubediagonal readdiagonal(textinput& in);

// Expands a cube into eight points, twelve lines and six faces; advances next by ten points and quads and twelve lines.
void expandcube(cubeslots& next, const cubediagonal& diagonal, const value& grade, const value& colour);

// Reads rows of one cube each, up to the end row but at most maxrows, and expands them into the slots starting at next.
// writes: cubegrade and cubecolour starting at firstcube, and everything expandcube writes; fails: as readelements.
void readsinglecubes(textinput& in, int firstcube, int maxrows, cubeslots& next);

}  // namespace tessaly

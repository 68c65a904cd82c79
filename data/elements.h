// Element files: the points, lines, cubes and quads of one element. The readers store them in the world tables, place
// them and draw them as wires.
#pragma once

#include "core/textfiles.h"
#include "core/value.h"

#include <array>

namespace tessaly {

// Reads the file "datah\" + datafile into the world tables, places the element as placemode selects, and plots it. If
// preopened is 1, the file is already open on channel 1. Then readelements only reads it, up to and including its
// framing sections, and leaves it open.
// reads: datafile, preopened, placemode, placex.., rotx, rotz; writes: the world tables, placex, placey, rotx, drawset;
// draws on viewport; fails: file not found, file access error, file already open, input past end of file, overflow,
// subscript out of range, type mismatch, division by zero. If reading or placing fails, the file stays open.
void readelements();

// Rotate the base positions of the points 1..100 and shift them by placex, placey, placez.
// reads: placex.., rotz or rotx; writes: ptx.., basex.., placex and placey (in world units afterwards).
void rotzplace();   // rotates by rotz degrees about Z
void rotxplace();   // rotates by rotx degrees about X; leaves radians in rotx
void shiftplace();  // does not rotate

// ---- steps shared with the readers of axis-cube files ----

// Clears the tables and fills them from a file with readsections. If preopened is readernumber, the file is already
// open on channel 1; otherwise loadtables opens "datah\" + datafile. Returns whether it opened the file: the caller
// must then place the element and call closeandplot. role: the role of the file, for reports.
bool loadtables(int readernumber, const char* role, void (*readsections)(textinput& in));

// Closes the file, sets drawset and plots.
void closeandplot(int newdrawset);

// Finishes a scene whose file the caller opened: runs the file's script, closes the file, loads the palette and plots.
// writes: preopened, palette, viewprompt, plotstate, and everything runtransforms and plotgroups write; draws on
// viewport; fails: as readelements.
void showscene();

// Reads the wire colours of the line groups from `from` to `to`.
void readwirecolours(textinput& in, int from, int to);

// The indexes at which the points, quads and lines of the next cube start.
struct cubeslots {
    int point, quad, line;
};

// Two opposite corners of a cube in the order of a file's row: x, y, z of one, then of the other.
using cubediagonal = std::array<value, 6>;
cubediagonal readdiagonal(textinput& in);

// Expands a cube into eight points, twelve lines and six faces. Advances next by twelve lines, and by ten points and
// ten quads, because the cube of number n takes those from 10 n + 1.
void expandcube(cubeslots& next, const cubediagonal& diagonal, const value& grade, const value& colour);

// Reads a section with a row for each cube, at most maxrows, and expands the cubes. Their lines start at the index line
// and form the line group `group`; their points and quads start at 10 * firstcube + 1. Returns the index after their
// last line. writes: cubegrade and cubecolour from firstcube, linecount, ptcount, and everything expandcube writes;
// fails: as readelements.
int readsinglecubes(textinput& in, const char* key, int firstcube, int maxrows, int group, int line);

}  // namespace tessaly

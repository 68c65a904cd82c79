// The girder and panel file reader: two design files, picked one after the other, replayed as one over the picture, as
// wires or solid with the elements of both sorted together. Each record carries its own floor's height, and its own
// kind decides what it draws, so that any two files go together. Design files are read and never written.
#pragma once

#include "building/designfiles.h"

namespace tessaly {

void clickautowirebtn();   // shows autofile1, refreshed, with its prompt, the hint and the button that closes it
void clickautosolidbtn();  // the same with autofile3

// The first file, for wires and for solid: its records, at most 1000, go to tempfile; then the second list is shown.
// writes: firstfilename, combinedcount, floorname, floornum, placez, placement, record tables; fails: file not found,
// file already open, file access error, type mismatch (a name without class or floor).
void pickautofile1();
void pickautofile3();

// The second file, for wires: appends its records to tempfile and draws what tempfile holds in its order.
// writes: as the first, secondfilename, the world tables; draws on viewport; fails: as the first pick and readelements;
// tempfile then stays.
void pickautofile2();

// The second file, solid: all records of both files, farthest first, each painted. At most 1000 in all: one more fails
// with subscript out of range. writes: as pickautofile2, quaddist, perpx.. (absolute until the next plotgroups);
// draws on viewport and progressbar; fails: as pickautofile2, paintsolids; the temporary files then stay.
void pickautofile4();

// Replays two files solid as the two picks do, and leaves the lists and prompts alone.
void replaypairsolid(const replayfile& first, const replayfile& second);

// Whether a first file was picked and the second one is to be picked.
bool awaitssecondfile();

}  // namespace tessaly

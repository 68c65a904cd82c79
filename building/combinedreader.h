// The girder and panel file reader. It replays two design files, which are picked one after the other, over the
// picture: as a wireframe, or solid with the elements of both files sorted together. Each line of its temporary file
// holds the kind of the element and the height of its floor, so any two design files can be combined. The reader does
// not change design files.
#pragma once

#include "building/designfiles.h"

namespace tessaly {

// Refresh and show the first list (autofile1 for wires, autofile3 for solid) with its prompt, the hint and the button
// that closes it.
void clickautowirebtn();
void clickautosolidbtn();

// Append at most 1000 records of the picked file to tempfile and show the second list. The fields of the lines differ
// between wires (pickautofile1) and solid (pickautofile3). writes: firstfilename, combinedcount, floorname, floornum,
// placez, the placement, the record tables; fails: file not found, file already open, file access error, type mismatch
// (a name without class or floor).
void pickautofile1();
void pickautofile3();

// Appends the records of the second file to tempfile and draws the first combinedcount records of tempfile as a
// wireframe. writes: as the first pick, secondfilename, the world tables; draws on viewport; fails: as the first pick
// and readelements; tempfile then remains.
void pickautofile2();

// Appends the records of the second file to tempfile and paints the first combinedcount records of tempfile, farthest
// first. writes: as pickautofile2, quaddist, perpx.. (absolute until the next plotgroups); draws on viewport and
// progressbar; fails: as pickautofile2 and paintsolids, and subscript out of range if there are more than 1000 records;
// the temporary files then remain.
void pickautofile4();

// Replays two files solid, as picking them in autofile3 and autofile4 does, without changing the lists and prompts.
void replaypairsolid(const replayfile& first, const replayfile& second);

// Returns whether a first file has been picked and the list for the second file is shown.
bool awaitssecondfile();

}  // namespace tessaly

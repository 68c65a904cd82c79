// The girder and panel file reader: replays two design files, picked one after the other, as one, over the picture: as
// a wireframe, or solid with the elements of both files sorted together. Each record has the height of its floor
// and its kind of element, so any two files can be combined. Design files are never written.
#pragma once

#include "building/designfiles.h"

namespace tessaly {

// Refresh and show the first list, autofile1 or autofile3, with its prompt, the hint and the button that closes it.
void clickautowirebtn();
void clickautosolidbtn();

// Append at most 1000 records of the first file to tempfile, in the form for wires or for solid, and show the second
// list. writes: firstfilename, combinedcount, floorname, floornum, placez, placement, record tables; fails: file not
// found, file already open, file access error, type mismatch (a name without class or floor).
void pickautofile1();
void pickautofile3();

// Appends the records of the second file to tempfile and draws all records of tempfile, in its order, as a wireframe.
// writes: as the first, secondfilename, the world tables; draws on viewport; fails: as the first pick and readelements;
// tempfile then stays.
void pickautofile2();

// Paints all records of both files, farthest first. They must not be more than 1000: one more fails with subscript out
// of range. writes: as pickautofile2, quaddist, perpx.. (absolute until the next plotgroups);
// draws on viewport and progressbar; fails: as pickautofile2, paintsolids; the temporary files then stay.
void pickautofile4();

// Replays two files solid as the two picks do, and leaves the lists and prompts alone.
void replaypairsolid(const replayfile& first, const replayfile& second);

// Whether a first file was picked and the second one is to be picked.
bool awaitssecondfile();

}  // namespace tessaly

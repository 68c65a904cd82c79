// The single file reader. It replays one design file over the picture: as a wireframe in the order of the file, or
// solid with the farthest element first. It does not change design files or the view.
#pragma once

#include "building/designfiles.h"

namespace tessaly {

// Refresh and show the list (autofile for wires, autofile5 for solid) and the button that closes it.
void clickautowiresingle();
void clickautosolidsingle();

// Replays at most 10000 records of the file picked in autofile as a wireframe. Once the file is open, the first failure
// ends the replay without a message, whether at the end of the file or in an element file; an element file that is open
// at that time stays open on channel 1. writes: secondfilename, floorname, floornum, placez, the placement, the world
// tables; draws on viewport; fails: type mismatch (a name without class or floor), file not found, file access error,
// file already open (channel 2).
void pickautofile();

// Replays at most 1000 records of the file picked in autofile5 solid, using tempfile. Only a failure while the design
// file is read ends the file without a message. writes: as pickautofile, and the record tables, quaddist, perpx..
// (absolute until the next plotgroups); draws on viewport and progressbar; fails: as pickautofile, readelements and
// paintsolids; tempfile then remains.
void pickautofile5();

// Replays a file solid, as pickautofile5 does, without changing the lists.
void replaysolid(const replayfile& file);

}  // namespace tessaly

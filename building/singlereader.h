// The single file reader: replays one design file over the picture, as a wireframe in the order of the file, or solid,
// farthest element first. It never writes design files and does not change the view.
#pragma once

#include "building/designfiles.h"

namespace tessaly {

// Refresh and show the list (autofile or autofile5) and the button that closes it.
void clickautowiresingle();
void clickautosolidsingle();

// Replays the file picked in autofile as a wireframe, at most 10000 records. The first failure after the file is open,
// such as the end of the file or a failure in an element file, ends the replay without a message; an element file that
// failed while it was open stays open on channel 1. writes: secondfilename, floorname, floornum, placez, the placement,
// the world tables; draws on viewport; fails: type mismatch (a name without class or floor), file not found, file
// access error, file already open (channel 2).
void pickautofile();

// Replays at most 1000 records of the file picked in autofile5 solid, using tempfile. Only failures while the design
// file is read are trapped. writes: as pickautofile, and the record tables, quaddist, perpx.. (absolute until the next
// plotgroups); draws on viewport and progressbar; fails: as pickautofile, readelements and paintsolids do; tempfile is
// then left behind.
void pickautofile5();

// Replays a file solid as pickautofile5 does, without changing the lists.
void replaysolid(const replayfile& file);

}  // namespace tessaly

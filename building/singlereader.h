// The single file reader: one design file replayed over the picture, as wires in the order of the file, or solid,
// farthest element first. It reads design files and never writes them, and the view stays as it is.
#pragma once

#include "building/designfiles.h"

namespace tessaly {

void clickautowiresingle();   // shows autofile, refreshed, and the button that closes it
void clickautosolidsingle();  // the same with autofile5

// Replays the file picked in autofile as wires, at most 10000 records. The first failure after the file is open ends
// the replay without a message, such as the end of the file or a failure in an element file; an element file that
// failed while it was open stays open on channel 1. writes: secondfilename, floorname, floornum, placez, the placement,
// the world tables; draws on viewport; fails: type mismatch (a name without class or floor), file not found, file
// access error, file already open (channel 2).
void pickautofile();

// Replays the file picked in autofile5 solid, at most 1000 records, through tempfile. Only the reading of the file is
// trapped. writes: as pickautofile, and the record tables, quaddist, perpx.. (absolute until the next plotgroups);
// draws on viewport and progressbar; fails: as pickautofile, readelements and paintsolids; tempfile then stays.
void pickautofile5();

// Replays a file solid as pickautofile5 does, and leaves the lists alone.
void replaysolid(const replayfile& file);

}  // namespace tessaly

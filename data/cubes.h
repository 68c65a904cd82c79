// Axis-cube files: rows of cubes that march along one axis.
#pragma once

namespace tessaly {

// Read "datah\" + datafile, run its script and plot it; or, with preopened at the reader's own value (2, 3, 4), read
// the file open on channel 1 and return. Fail as readelements.
void readcubex();
void readcubey();
void readcubez();

// Shows the nine-storey cube of "az-cube.txt". fails: as readelements.
void displaycube();

}  // namespace tessaly

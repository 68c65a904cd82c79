// Axis-cube files: rows of cubes along one axis.
#pragma once

namespace tessaly {

// Read "datah\" + datafile, run its transformation script and plot the result. If preopened is the number of this
// reader (2 for x, 3 for y, 4 for z), the file is already open on channel 1: read its sections and return. reads,
// writes, fails: as readelements(), and cubegrade, cubecolour, rowgrade, rowcolour.
void readcubex();
void readcubey();
void readcubez();

// Shows the nine-storey cube of "az-cube.txt". fails: as readelements.
void displaycube();

}  // namespace tessaly

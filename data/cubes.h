// Axis-cube files, which describe rows of cubes along an axis.
#pragma once

namespace tessaly {

// Read the file "datah\" + datafile, run its transformation script and plot the result. If preopened is the number of
// the reader (2 for x, 3 for y, 4 for z), the file is already open on channel 1. The reader then only reads its
// sections and leaves it open. reads: datafile, preopened; writes: the world tables, rowgrade, rowcolour, drawset, as
// runtransforms; draws on viewport; fails: as readelements.
void readcubex();
void readcubey();
void readcubez();

// Shows the nine-storey cube of "az-cube.txt". reads, writes, fails: as readcubez and showscene.
void displaycube();

}  // namespace tessaly

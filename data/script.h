// Transformation scripts: the last part of an element or axis-cube file, which moves and scales the points.
#pragma once

namespace tessaly {

// Runs the script of the file open on channel 1 up to STOP and leaves the file open. writes: ptx.., basex.., placex..,
// rotx, rotz; fails: input past end of file, subscript out of range, type mismatch, overflow.
void runtransforms();

}  // namespace tessaly

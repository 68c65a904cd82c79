// Transformation scripts: the last part of an element or cube file, which moves, scales and repeats its points.
#pragma once

namespace tessaly {

// Runs the script of the file open on channel 1 up to its STOP. writes: ptx.., basex..; side effects on placex.., rotx
// and rotz; fails: input past end of file, subscript, type mismatch, overflow.
void runtransforms();

}  // namespace tessaly

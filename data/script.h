// Transformation scripts: the last part of an element or cube file, which moves, scales and repeats its points.
#pragma once

namespace tessaly {

// Obeys the script on channel 1 up to its STOP. writes: ptx.., basex.., and as leftovers placex.., rotx, rotz;
// fails: input past end of file, subscript, type mismatch.
void runtransforms();

}  // namespace tessaly

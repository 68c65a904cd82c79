// Sine and cosine, rounded to the nearest double. The libraries of different systems differ in the last bit, and one
// library may differ between processors with and without fused multiply-add. An element rotated by an odd angle would
// then have other coordinates on another machine.
#pragma once

namespace tessaly {

// Return the sine and the cosine of an angle in radians. Beyond 1e9 radians they call the standard library.
double sineof(double angle);
double cosineof(double angle);

}  // namespace tessaly

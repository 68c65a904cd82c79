// Sine and cosine, rounded to the nearest double. The results of the standard library differ in the last bit between
// systems, and even between processors with and without fused multiply-add. A rotated element would then have different
// coordinates on different machines.
#pragma once

namespace tessaly {

// Return the sine and the cosine of an angle in radians. From 1e9 radians up, they call the standard library.
double sineof(double angle);
double cosineof(double angle);

}  // namespace tessaly

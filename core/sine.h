// Sine and cosine of our own, rounded to the nearest double. The system's libraries differ in the last place, and one
// library does from processor to processor, by whether it has a fused multiply; an element at an odd angle would stand
// elsewhere.
#pragma once

namespace tessaly {

// Of an angle in radians.
double sineof(double angle);
double cosineof(double angle);

}  // namespace tessaly

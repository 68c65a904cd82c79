// Points from their base place: turned about an axis and moved, by placements and scripts alike.
#pragma once

namespace tessaly {

// Degrees to radians with the truncated pi that shows in the coordinates.
constexpr double radians(double degrees) { return degrees * 3.14159 / 180; }

// The base place of point i is where it stands now.
void copytobase(int i);

// Moves point i: its base place, turned about an axis by the angle whose cosine and sine are c and s, then shifted.
// That is its base place from then on. fails: subscript, type mismatch.
using turn = void (*)(int i, double c, double s, double dx, double dy, double dz);
void turnx(int i, double c, double s, double dx, double dy, double dz);
void turny(int i, double c, double s, double dx, double dy, double dz);
void turnz(int i, double c, double s, double dx, double dy, double dz);

// Moves the points first..last, turned by an angle in radians and shifted by placex..; every step-th, only shifted.
void turnpoints(int first, int last, double angle, turn about);
void shiftpoints(int first, int last, int step);

}  // namespace tessaly

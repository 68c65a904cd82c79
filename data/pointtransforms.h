// Rotates points about an axis and moves them, starting from their base positions, for placements and scripts.
#pragma once

#include "core/world.h"

#include <algorithm>

namespace tessaly {

// Converts degrees to radians. Deliberately uses a truncated pi, which affects the coordinates.
constexpr double radians(double degrees) { return degrees * 3.14159 / 180; }

// Sets the position and the base position of point i.
void placepoint(int i, const value& x, const value& y, const value& z);

// Rotate the base position of point i about an axis by the angle with cosine c and sine s, then shift it. The result is
// the new position and base position. Fail with subscript, type mismatch.
using rotation = void (*)(int i, double c, double s, double dx, double dy, double dz);
void rotatex(int i, double c, double s, double dx, double dy, double dz);
void rotatey(int i, double c, double s, double dx, double dy, double dz);
void rotatez(int i, double c, double s, double dx, double dy, double dz);

// Calls visit(i) for every step-th point from first to last; for none if first > last. Fails with subscript at the
// first point outside the tables.
template <class procedure>
void foreachpoint(double first, double last, int step, procedure visit);

// Rotates the points first..last by an angle in radians and shifts them by placex, placey, placez.
void rotatepoints(double first, double last, double angle, rotation rotate);

// Shifts every step-th point of first..last by placex, placey, placez.
void shiftpoints(double first, double last, int step);

[[noreturn]] void failpointrange(double first, double last);

template <class procedure>
void foreachpoint(double first, double last, int step, procedure visit) {
    if (first > last) return;
    const double from = nearestwhole(first), to = nearestwhole(last);
    if (from < 0 || from > lastpoint) failpointrange(first, last);
    int i = static_cast<int>(from);
    for (; i <= std::min<double>(to, lastpoint); i += step) visit(i);
    if (i <= to) failpointrange(first, last);
}

}  // namespace tessaly

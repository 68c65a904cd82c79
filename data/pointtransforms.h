// Points from their base place: turned about an axis and moved, by placements and scripts alike.
#pragma once

#include "core/world.h"

#include <algorithm>

namespace tessaly {

// Degrees to radians with the truncated pi that shows in the coordinates.
constexpr double radians(double degrees) { return degrees * 3.14159 / 180; }

// This is where point i stands from now on, and its base place.
void placepoint(int i, const value& x, const value& y, const value& z);

// Moves point i: its base place, turned about an axis by the angle whose cosine and sine are c and s, then shifted.
// That is its base place from then on. fails: subscript, type mismatch.
using turn = void (*)(int i, double c, double s, double dx, double dy, double dz);
void turnx(int i, double c, double s, double dx, double dy, double dz);
void turny(int i, double c, double s, double dx, double dy, double dz);
void turnz(int i, double c, double s, double dx, double dy, double dz);

// Runs visit(i) for every step-th point from first to last; for none where first is the greater figure. Either may lie
// outside the tables, only the points that are touched count: the first one that is none ends it. fails: subscript.
template <class procedure>
void overpoints(double first, double last, int step, procedure visit);

// Moves the points first..last, turned by an angle in radians and shifted by placex..; every step-th, only shifted.
void turnpoints(double first, double last, double angle, turn about);
void shiftpoints(double first, double last, int step);

[[noreturn]] void runfailure(double first, double last);

template <class procedure>
void overpoints(double first, double last, int step, procedure visit) {
    if (first > last) return;
    const double from = nearestwhole(first), to = nearestwhole(last);
    if (from < 0 || from > lastpoint) runfailure(first, last);
    int i = static_cast<int>(from);
    for (; i <= std::min<double>(to, lastpoint); i += step) visit(i);
    if (i <= to) runfailure(first, last);
}

}  // namespace tessaly

// Rotating and shifting points, for placements and scripts. The new positions are computed from the base positions.
#pragma once

#include "core/world.h"

namespace tessaly {

enum axis : std::size_t { xaxis, yaxis, zaxis };

// Converts degrees to radians. Deliberately uses a truncated pi, which affects the coordinates.
constexpr double radians(double degrees) { return degrees * 3.14159 / 180; }

// Sets the working and the base coordinates of point i.
void placepoint(int i, const value& x, const value& y, const value& z);

// Rotates the base coordinates of the points first..last by an angle in radians about an axis, then adds shift (x, y,
// z). The results are the new working and base coordinates.
// fails: subscript out of range, type mismatch.
void rotatepoints(double first, double last, axis about, double angle, const value (&shift)[3]);

// Shifts every step-th point of first..last by placex, placey, placez. fails: as rotatepoints.
void shiftpoints(double first, double last, int step);

// Fails with subscript out of range.
[[noreturn]] void pointrangefailure(double first, double last);

// Calls visit(i) for every step-th point from first to last, for no point if first > last. Fails with subscript out of
// range at the first point outside the tables.
template <class procedure>
void foreachpoint(double first, double last, int step, procedure visit) {
    if (first > last) return;
    const double end = nearestwhole(last);
    for (double i = nearestwhole(first); i <= end; i += step) {
        if (i < 0 || i > lastpoint) pointrangefailure(first, last);
        visit(static_cast<int>(i));
    }
}

}  // namespace tessaly

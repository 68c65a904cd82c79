// The turns. Sums and products run in the order in which they are written.

#include "data/pointtransforms.h"

#include "core/failure.h"
#include "core/sine.h"

namespace tessaly {

void placepoint(int i, const value& x, const value& y, const value& z) {
    setpoint(i, x, y, z);
    basex.set(i, x);
    basey.set(i, y);
    basez.set(i, z);
}

void turnx(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    placepoint(i, x + dx, y * c - z * s + dy, y * s + z * c + dz);
}

void turny(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    placepoint(i, z * s + x * c + dx, y + dy, z * c - x * s + dz);
}

void turnz(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    placepoint(i, x * c - y * s + dx, x * s + y * c + dy, z + dz);
}

void turnpoints(double first, double last, double angle, turn about) {
    if (first > last) return;  // offsets that move nothing need not be numbers
    const double c = cosineof(angle), s = sineof(angle), dx = placex, dy = placey, dz = placez;
    overpoints(first, last, 1, [=](int i) { about(i, c, s, dx, dy, dz); });
}

void shiftpoints(double first, double last, int step) {
    overpoints(first, last, step, [](int i) {
        const double x = basex[i] + placex, y = basey[i] + placey, z = basez[i] + placez;
        placepoint(i, x, y, z);
    });
}

void runfailure(double first, double last) {
    throw failure(failurekind::subscript, "points " + plaintext(first) + ".." + plaintext(last) + ", points 0.." +
                                              std::to_string(lastpoint) + " were expected");
}

}  // namespace tessaly

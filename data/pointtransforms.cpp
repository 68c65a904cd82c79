// Sums and products are evaluated in the written order.

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

void rotatex(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    placepoint(i, x + dx, y * c - z * s + dy, y * s + z * c + dz);
}

void rotatey(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    placepoint(i, z * s + x * c + dx, y + dy, z * c - x * s + dz);
}

void rotatez(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    placepoint(i, x * c - y * s + dx, x * s + y * c + dy, z + dz);
}

void rotatepoints(double first, double last, double angle, rotation rotate) {
    if (first > last) return;  // without points the offsets need not be numbers
    const double c = cosineof(angle), s = sineof(angle), dx = placex, dy = placey, dz = placez;
    foreachpoint(first, last, 1, [=](int i) { rotate(i, c, s, dx, dy, dz); });
}

void shiftpoints(double first, double last, int step) {
    foreachpoint(first, last, step, [](int i) {
        const double x = basex[i] + placex, y = basey[i] + placey, z = basez[i] + placez;
        placepoint(i, x, y, z);
    });
}

void failpointrange(double first, double last) {
    throw failure(failurekind::subscript, "points " + plaintext(first) + ".." + plaintext(last) + ", points 0.." +
                                              std::to_string(lastpoint) + " were expected");
}

}  // namespace tessaly

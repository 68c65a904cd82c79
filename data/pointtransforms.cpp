// The order in which sums and products are evaluated affects the last digits and must not be changed.

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

void rotatepoints(double first, double last, axis about, double angle, const value (&shift)[3]) {
    if (first > last) return;  // without points the shift may contain texts
    const double c = cosineof(angle), s = sineof(angle);
    const double offset[] = {shift[xaxis], shift[yaxis], shift[zaxis]};
    const std::size_t u = (about + 1) % 3, v = (about + 2) % 3;  // a positive angle rotates axis u towards axis v
    foreachpoint(first, last, 1, [&](int i) {
        const double p[] = {basex[i], basey[i], basez[i]};
        double rotated[3];
        rotated[about] = p[about] + offset[about];
        rotated[u] = p[u] * c - p[v] * s + offset[u];
        rotated[v] = p[u] * s + p[v] * c + offset[v];
        placepoint(i, rotated[xaxis], rotated[yaxis], rotated[zaxis]);
    });
}

void shiftpoints(double first, double last, int step) {
    foreachpoint(first, last, step, [](int i) {
        const double x = basex[i] + placex, y = basey[i] + placey, z = basez[i] + placez;
        placepoint(i, x, y, z);
    });
}

void pointrangefailure(double first, double last) {
    throw failure(failurekind::subscript, "points " + plaintext(first) + ".." + plaintext(last) + ", points 0.." +
                                              std::to_string(lastpoint) + " were expected");
}

}  // namespace tessaly

// The turns. Sums and products run in the order in which they are written.

#include "data/turns.h"

#include "core/failure.h"
#include "core/sine.h"

namespace tessaly {

void copytobase(int i) {
    basex.set(i, ptx[i]);
    basey.set(i, pty[i]);
    basez.set(i, ptz[i]);
}

void turnx(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    ptx.set(i, x + dx);
    pty.set(i, y * c - z * s + dy);
    ptz.set(i, y * s + z * c + dz);
    copytobase(i);
}

void turny(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    ptx.set(i, z * s + x * c + dx);
    pty.set(i, y + dy);
    ptz.set(i, z * c - x * s + dz);
    copytobase(i);
}

void turnz(int i, double c, double s, double dx, double dy, double dz) {
    const double x = basex[i], y = basey[i], z = basez[i];
    ptx.set(i, x * c - y * s + dx);
    pty.set(i, x * s + y * c + dy);
    ptz.set(i, z + dz);
    copytobase(i);
}

void turnpoints(double first, double last, double angle, turn about) {
    const double c = cosineof(angle), s = sineof(angle);
    overpoints(first, last, 1, [=](int i) { about(i, c, s, placex, placey, placez); });
}

void shiftpoints(double first, double last, int step) {
    overpoints(first, last, step, [](int i) {
        ptx.set(i, basex[i] + placex);
        pty.set(i, basey[i] + placey);
        ptz.set(i, basez[i] + placez);
        copytobase(i);
    });
}

void runfailure(double first, double last) {
    throw failure(failurekind::subscript, "points " + plaintext(first) + ".." + plaintext(last) + ", points 0.." +
                                              std::to_string(lastpoint) + " were expected");
}

}  // namespace tessaly

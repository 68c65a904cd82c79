// Transformation scripts: blocks of rows between TRAN and the next TRAN, each keyword one procedure over a row.

#include "data/script.h"

#include "core/failure.h"
#include "core/fields.h"
#include "core/sine.h"
#include "core/textfiles.h"
#include "core/world.h"
#include "data/pointtransforms.h"

#include <cmath>
#include <string>
#include <string_view>

namespace tessaly {

namespace {

constexpr int maxrows = 7000, maxpairs = 10000;
constexpr int maxfields = 6;

// ---- one procedure a keyword; row holds its fields in file order ----

template <auto& working, auto& base>
void setone(const value* row) {
    working.set(row[0], row[1]);
    base.set(row[0], row[1]);
}

void resize(const value* row) {
    overpoints(row[0], row[1], 1, [row](int i) {
        const double x = ptx[i] * row[2], y = pty[i] * row[3], z = ptz[i] * row[4];
        placepoint(i, x, y, z);
    });
}

void keepplace(const value* offsets) {
    placex = offsets[0];
    placey = offsets[1];
    placez = offsets[2];
}

void rotatetranslate(const value* row, double angle, turn about) {
    keepplace(row + 3);
    turnpoints(row[0], row[1], angle, about);
}

void xrotatetranslate(const value* row) {
    rotx = radians(row[2]);
    rotatetranslate(row, rotx, turnx);
}

void yrotatetranslate(const value* row) { rotatetranslate(row, radians(row[2]), turny); }

void zrotatetranslate(const value* row) {
    rotz = radians(row[2]);
    rotatetranslate(row, rotz, turnz);
}

void translatesteps(const value* row, int step) {
    keepplace(row + 2);
    shiftpoints(row[0], row[1], step);
}

void translate(const value* row) { translatesteps(row, 1); }
void step10translate(const value* row) { translatesteps(row, 10); }

// The angle added up once a pass of a wrap that moves no points; beyond ten million passes the product.
double summed(double angle, double copies) {
    constexpr double maxpasses = 1e7;
    if (copies > maxpasses) return angle * std::floor(copies);
    double sum = 0;
    for (int k = 1; k <= copies; ++k) sum += angle;
    return sum;
}

// A wrap: copies passes over a run of points, ten indexes further on each, with an angle and a rise that grow; the rise
// along the axis in pass k is (base + k) k rise. axis tells which of dx, dy, dz the rise is.
void wrap(const value* row, value& running, turn about, int axis) {
    const double first = row[0], last = row[1], angle = radians(row[2]), copies = row[3], base = row[4], rise = row[5];
    running = 0;
    if (first > last) {
        running = summed(angle, copies);
        return;
    }
    double factor = base, risen = 0;
    for (int k = 1; k <= copies; ++k) {  // after a thousand passes the run of points has left the tables, which fails
        risen += rise;
        running = running + angle;
        factor += 1;
        const double r = factor * risen, c = cosineof(running), s = sineof(running);
        overpoints(first + 10 * (k - 1), last + 10 * (k - 1), 1,
                   [=](int i) { about(i, c, s, axis == 0 ? r : 0, axis == 1 ? r : 0, axis == 2 ? r : 0); });
    }
}

void zwrap(const value* row) { wrap(row, rotz, turnz, 2); }
void xwrap(const value* row) { wrap(row, rotx, turnx, 0); }
void ywrap(const value* row) {
    value running;  // about Y nothing is left behind
    wrap(row, running, turny, 1);
}

struct block {
    std::string_view keyword;
    int fields, rows;
    void (*obey)(const value* row);
};

constexpr block blocks[] = {
    // clang-format off
    {"XTRANSFORMATIONS:",  2, maxpairs, setone<ptx, basex>},
    {"YTRANSFORMATIONS:",  2, maxpairs, setone<pty, basey>},
    {"ZTRANSFORMATIONS:",  2, maxpairs, setone<ptz, basez>},
    {"RESIZE:",            5, maxrows,  resize},
    {"XROTATETRANSLATE:",  6, maxrows,  xrotatetranslate},
    {"YROTATETRANSLATE:",  6, maxrows,  yrotatetranslate},
    {"ZROTATETRANSLATE:",  6, maxrows,  zrotatetranslate},
    {"TRANSLATE:",         5, maxrows,  translate},
    {"STEP10TRANSLATE:",   5, maxrows,  step10translate},
    {"ZWRAP:",             6, maxrows,  zwrap},
    {"XWRAP:",             6, maxrows,  xwrap},
    {"YWRAP:",             6, maxrows,  ywrap},
    // clang-format on
};

// A keyword that nobody knows is no mistake: its rows are read as pairs of point and x.
const block& blockof(std::string_view keyword) {
    for (const block& b : blocks)
        if (b.keyword == keyword) return b;
    return blocks[0];
}

void obeyblock(textinput& in, const block& b) {
    for (int n = 1; n <= b.rows; ++n) {
        const fieldlocation start = nextfield(in);
        value row[maxfields];
        for (int f = 0; f < b.fields; ++f) row[f] = readvalue(in, "a field of a transformation row");
        if (endsrows(row[0])) return;
        locaterow(in, start, b.keyword, [&] { b.obey(row); });
    }
}

}  // namespace

void runtransforms() {
    textinput& in = channelinput(1);
    std::string keyword;
    for (;;) {
        // Every block is introduced by its own TRAN; a keyword that was TRAN itself introduces the next block.
        if (keyword != "TRAN") findkey(in, "TRAN");
        keyword = readtextfield(in, "the keyword behind TRAN");
        if (keyword == "STOP") return;
        obeyblock(in, blockof(keyword));
    }
}

}  // namespace tessaly

// Transformation scripts consist of blocks. Each begins with TRAN and a keyword, which selects the procedure applied to
// each row.

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

// ---- one procedure per keyword; row holds the fields in file order ----

template <auto& working, auto& base>
void setcoordinate(const value* row) {
    working.set(row[0], row[1]);
    base.set(row[0], row[1]);
}

void resize(const value* row) {
    foreachpoint(row[0], row[1], 1, [row](int i) {
        const double x = ptx[i] * row[2], y = pty[i] * row[3], z = ptz[i] * row[4];
        placepoint(i, x, y, z);
    });
}

void setplace(const value* offsets) {
    placex = offsets[0];
    placey = offsets[1];
    placez = offsets[2];
}

void rotatetranslate(const value* row, double angle, rotation rotate) {
    setplace(row + 3);
    rotatepoints(row[0], row[1], angle, rotate);
}

void xrotatetranslate(const value* row) {
    rotx = radians(row[2]);
    rotatetranslate(row, rotx, rotatex);
}

void yrotatetranslate(const value* row) { rotatetranslate(row, radians(row[2]), rotatey); }

void zrotatetranslate(const value* row) {
    rotz = radians(row[2]);
    rotatetranslate(row, rotz, rotatez);
}

void translatesteps(const value* row, int step) {
    setplace(row + 2);
    shiftpoints(row[0], row[1], step);
}

void translate(const value* row) { translatesteps(row, 1); }
void step10translate(const value* row) { translatesteps(row, 10); }

// Returns the total angle of a wrap that moves no points: the sum over its passes, or beyond ten million passes the
// product.
double totalofangle(double angle, double copies) {
    constexpr double maxpasses = 1e7;
    if (copies > maxpasses) return angle * std::floor(copies);
    double sum = 0;
    for (int k = 1; k <= copies; ++k) sum += angle;
    return sum;
}

// Makes `copies` passes over a range of points, ten indexes further each time. Pass k rotates by k * angle and shifts
// along the axis by (startfactor + k) * k * rise. axis selects which of dx, dy, dz is the shift.
void wrap(const value* row, value& totalangle, rotation rotate, int axis) {
    const double first = row[0], last = row[1], angle = radians(row[2]), copies = row[3], startfactor = row[4],
                 rise = row[5];
    totalangle = 0;
    if (first > last) {
        totalangle = totalofangle(angle, copies);
        return;
    }
    double factor = startfactor, totalrise = 0;
    for (int k = 1; k <= copies; ++k) {  // a non-empty range fails when it passes the end of the tables
        totalrise += rise;
        totalangle = totalangle + angle;
        factor += 1;
        const double r = factor * totalrise, c = cosineof(totalangle), s = sineof(totalangle);
        foreachpoint(first + 10 * (k - 1), last + 10 * (k - 1), 1,
                     [=](int i) { rotate(i, c, s, axis == 0 ? r : 0, axis == 1 ? r : 0, axis == 2 ? r : 0); });
    }
}

void zwrap(const value* row) { wrap(row, rotz, rotatez, 2); }
void xwrap(const value* row) { wrap(row, rotx, rotatex, 0); }
void ywrap(const value* row) {
    value totalangle;  // YWRAP changes no scalar
    wrap(row, totalangle, rotatey, 1);
}

struct block {
    std::string_view keyword;
    int fields, rows;
    void (*apply)(const value* row);
};

constexpr block blocks[] = {
    // clang-format off
    {"XTRANSFORMATIONS:",  2, maxpairs, setcoordinate<ptx, basex>},
    {"YTRANSFORMATIONS:",  2, maxpairs, setcoordinate<pty, basey>},
    {"ZTRANSFORMATIONS:",  2, maxpairs, setcoordinate<ptz, basez>},
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

// Returns the block of a keyword. An unknown keyword is not an error: its rows are read as pairs of point and x.
const block& blockof(std::string_view keyword) {
    for (const block& b : blocks)
        if (b.keyword == keyword) return b;
    return blocks[0];
}

void runblock(textinput& in, const block& b) {
    for (int n = 1; n <= b.rows; ++n) {
        const fieldlocation start = skiptofield(in);
        value row[maxfields];
        for (int f = 0; f < b.fields; ++f) row[f] = readvalue(in, "a field of a transformation row");
        if (endsrows(row[0])) return;
        withrowlocation(in, start, b.keyword, [&] { b.apply(row); });
    }
}

}  // namespace

void runtransforms() {
    textinput& in = channelinput(1);
    std::string keyword;
    for (;;) {
        // Each block needs a TRAN. If the keyword just read was TRAN, it introduces the next block.
        if (keyword != "TRAN") findkey(in, "TRAN");
        keyword = readtextfield(in, "the keyword after TRAN");
        if (keyword == "STOP") return;
        runblock(in, blockof(keyword));
    }
}

}  // namespace tessaly

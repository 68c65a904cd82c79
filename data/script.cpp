// Transformation scripts consist of blocks. Each begins with TRAN and a keyword, which selects the procedure applied to
// each row.

#include "data/script.h"

#include "core/failure.h"
#include "core/fields.h"
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

template <int step>
void translate(const value* row) {
    setplace(row + 2);
    shiftpoints(row[0], row[1], step);
}

// Stores an angle about X in rotx and one about Z in rotz. An angle about Y is not stored.
void storeangle(axis about, double angle) {
    if (about == xaxis) rotx = angle;
    if (about == zaxis) rotz = angle;
}

template <axis about>
void rotatetranslate(const value* row) {
    const double angle = radians(row[2]);
    storeangle(about, angle);
    setplace(row + 3);
    rotatepoints(row[0], row[1], about, angle, {placex, placey, placez});
}

// Makes `copies` passes over a range of points, ten indexes further each time. Pass k rotates by k * angle and shifts
// along the axis by (startfactor + k) * k * rise.
template <axis about>
void wrap(const value* row) {
    const double first = row[0], last = row[1], angle = radians(row[2]), copies = row[3], startfactor = row[4],
                 rise = row[5];
    constexpr double maxpasses = 1e7;
    // Without points the passes only add up the angle. Beyond maxpasses a product replaces the sum.
    if (first > last && copies > maxpasses) return storeangle(about, angle * std::floor(copies));
    double factor = startfactor, totalangle = 0, totalrise = 0;
    storeangle(about, totalangle);
    for (int k = 1; k <= copies; ++k) {  // a non-empty range fails when it passes the end of the tables
        totalrise += rise;
        totalangle += angle;
        factor += 1;
        storeangle(about, totalangle);
        value shift[3] = {0, 0, 0};
        shift[about] = factor * totalrise;
        if (first <= last) rotatepoints(first + 10 * (k - 1), last + 10 * (k - 1), about, totalangle, shift);
    }
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
    {"XROTATETRANSLATE:",  6, maxrows,  rotatetranslate<xaxis>},
    {"YROTATETRANSLATE:",  6, maxrows,  rotatetranslate<yaxis>},
    {"ZROTATETRANSLATE:",  6, maxrows,  rotatetranslate<zaxis>},
    {"TRANSLATE:",         5, maxrows,  translate<1>},
    {"STEP10TRANSLATE:",   5, maxrows,  translate<10>},
    {"ZWRAP:",             6, maxrows,  wrap<zaxis>},
    {"XWRAP:",             6, maxrows,  wrap<xaxis>},
    {"YWRAP:",             6, maxrows,  wrap<yaxis>},
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

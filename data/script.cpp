// A transformation script consists of blocks. Each block begins with TRAN and a keyword; the keyword selects the
// procedure that is applied to each row.

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

// ---- the procedures of the keywords; row holds the fields in file order ----

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

// Makes `copies` passes over a range of points, which starts ten indexes later in each pass. Pass k rotates by k *
// angle about the axis and shifts along it by (startfactor + k) * k * rise.
template <axis about>
void wrap(const value* row) {
    const double first = row[0], last = row[1], angle = radians(row[2]), copies = row[3], startfactor = row[4],
                 rise = row[5];
    constexpr double maxpasses = 1e7;
    // Without points the passes only add up the angle. If there are too many, a product replaces the sum.
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

constexpr int maxfields = 6;
struct blocktype {
    std::string_view keyword;
    int fields, maxrows;
    void (*apply)(const value* row);
};

constexpr blocktype blocktypes[] = {
    // clang-format off
    // keyword       fields maxrows procedure
    {"XTRANSFORMATIONS:",  2, 10000, setcoordinate<ptx, basex>},
    {"YTRANSFORMATIONS:",  2, 10000, setcoordinate<pty, basey>},
    {"ZTRANSFORMATIONS:",  2, 10000, setcoordinate<ptz, basez>},
    {"RESIZE:",            5, 7000,  resize},
    {"XROTATETRANSLATE:",  6, 7000,  rotatetranslate<xaxis>},
    {"YROTATETRANSLATE:",  6, 7000,  rotatetranslate<yaxis>},
    {"ZROTATETRANSLATE:",  6, 7000,  rotatetranslate<zaxis>},
    {"TRANSLATE:",         5, 7000,  translate<1>},
    {"STEP10TRANSLATE:",   5, 7000,  translate<10>},
    {"ZWRAP:",             6, 7000,  wrap<zaxis>},
    {"XWRAP:",             6, 7000,  wrap<xaxis>},
    {"YWRAP:",             6, 7000,  wrap<yaxis>},
    // clang-format on
};

// Returns the block type of a keyword. The rows of an unknown keyword are read as those of XTRANSFORMATIONS:. This is
// intended.
const blocktype& blocktypeof(std::string_view keyword) {
    for (const blocktype& t : blocktypes)
        if (t.keyword == keyword) return t;
    return blocktypes[0];
}

void runblock(textinput& in, const blocktype& type) {
    for (int n = 1; n <= type.maxrows; ++n) {
        const fieldlocation start = skiptofield(in);
        value row[maxfields];
        for (int f = 0; f < type.fields; ++f) row[f] = readvalue(in, "a field of a transformation row");
        if (endsrows(row[0])) return;
        withrowlocation(in, start, type.keyword, [&] { type.apply(row); });
    }
}

}  // namespace

void runtransforms() {
    textinput& in = channelinput(1);
    std::string keyword;
    for (;;) {
        // A keyword that is itself TRAN also introduces the next block.
        if (keyword != "TRAN") findkey(in, "TRAN");
        keyword = readtextfield(in, "the keyword after TRAN");
        if (keyword == "STOP") return;
        runblock(in, blocktypeof(keyword));
    }
}

}  // namespace tessaly

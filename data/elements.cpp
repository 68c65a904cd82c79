// Reads the sections of an element file in their fixed order, expands cubes and places the element. The end row of a
// STANDARD:, LINEG or AUTOPLANE: section is also stored, in the slot after the last row of data.

#include "data/elements.h"

#include "core/failure.h"
#include "core/fields.h"
#include "core/textfiles.h"
#include "core/world.h"
#include "data/pointtransforms.h"
#include "data/script.h"
#include "render/palette.h"
#include "render/projector.h"

namespace tessaly {

namespace {

constexpr int lastplacedpoint = 100;  // a placement moves the points 1 to lastplacedpoint
constexpr int maxplanes = 7000;
constexpr int maxcubes = 200;  // of a section

void readpoints(textinput& in) {
    findkey(in, "STANDARD:");
    for (int n = 1; n <= lastpoint; ++n) {
        const int label = readwholenumber(in, "the label of a STANDARD: row");
        ptx.set(n, readvalue(in, "x of a STANDARD: row"));
        pty.set(n, readvalue(in, "y of a STANDARD: row"));
        ptz.set(n, readvalue(in, "z of a STANDARD: row"));
        placepoint(n, ptx[n], pty[n], ptz[n]);
        if (label == sentinel) {
            ptcount1 = n - 1;
            return;
        }
    }
}

// Reads a LINEG section into the lines starting at line. Returns its number of lines, 0 if it has no end row.
int readlinegroup(textinput& in, const char* key, int line) {
    findkey(in, key);
    for (int n = line; n <= lastline; ++n) {
        lineend1.set(n, readvalue(in, "the first point of a line row"));
        lineend2.set(n, readvalue(in, "the second point of a line row"));
        if (endsrows(lineend1[n]) && endsrows(lineend2[n])) return n - line;
    }
    return 0;
}

void readplanes(textinput& in) {
    findkey(in, "AUTOPLANE:");
    for (int q = 1; q <= maxplanes; ++q) {
        const int label = readwholenumber(in, "the label of an AUTOPLANE: row");
        quad1.set(q, readvalue(in, "corner 1 of an AUTOPLANE: row"));
        quad3.set(q, readvalue(in, "corner 3 of an AUTOPLANE: row"));
        quad2.set(q, readvalue(in, "corner 2 of an AUTOPLANE: row"));
        quad4.set(q, readvalue(in, "corner 4 of an AUTOPLANE: row"));
        quadface.set(q, readvalue(in, "the face of an AUTOPLANE: row"));
        quadcolour.set(q, readvalue(in, "the colour of an AUTOPLANE: row"));
        if (label == sentinel) return;
    }
}

void readframing(textinput& in, const char* key, quadtable& framing) {
    findkey(in, key);
    for (;;) {
        const fieldlocation row = skiptofield(in);
        const value quad = readvalue(in, "the quad index of a framing row");
        const value count = readvalue(in, "the count of a framing row");
        const bool end = endsrows(count);
        withrowlocation(in, row, key, [&] { framing.set(quad, end ? value(0) : count); });
        if (end) return;
    }
}

void readelementsections(textinput& in) {
    readwirecolours(in, 1, 7);
    readpoints(in);
    int line = 1;
    const char* const keys[] = {"LINEG1:", "LINEG2:", "LINEG3:", "LINEG4:", "LINEG5:"};
    for (int group = 1; group <= 5; ++group) {
        const int count = readlinegroup(in, keys[group - 1], line);
        linecount[group] = count;
        line += count;
    }
    line = readsinglecubes(in, "AUTOCUBE400:", 400, maxcubes, 6, line);
    readsinglecubes(in, "AUTOCUBE600:", 600, maxcubes, 7, line);
    readplanes(in);
    readframing(in, "AUTOFRAMING1:", framing1);
    readframing(in, "AUTOFRAMING2:", framing2);
}

// Converts placex and placey from layout to world units.
void convertplace() {
    placex = placex - planoriginx;
    placey = placey - planoriginy;
}

// Places the element as placemode selects. Returns false if placemode selects no placement.
bool tryplace() {
    const double mode = placemode;
    if (mode == 0)
        runtransforms();
    else if (mode == 1 || mode == 4)
        rotzplace();
    else if (mode == 2)
        rotxplace();
    else if (mode == 3 || mode == 5)
        shiftplace();
    else
        return false;
    return true;
}

}  // namespace

void readelements() {
    // Without a placement the file stays open on channel 1, so that the next element fails. This is intended.
    if (loadtables(1, "element file", readelementsections) && tryplace()) closeandplot(1);
}

void rotzplace() {
    convertplace();
    rotatepoints(1, lastplacedpoint, zaxis, radians(rotz), {placex, placey, placez});
}

void rotxplace() {
    convertplace();
    rotx = radians(rotx);
    rotatepoints(1, lastplacedpoint, xaxis, rotx, {placex, placey, placez});
}

void shiftplace() {
    convertplace();
    shiftpoints(1, lastplacedpoint, 1);
}

bool loadtables(int readernumber, const char* role, void (*readsections)(textinput& in)) {
    resetworld();
    const bool opened = preopened == readernumber;
    textinput& in = opened ? channelinput(1) : openinput(1, "datah\\" + datafile.text(), role);
    loadedfile = in.path;
    withsubscriptlocation([&in] { return in.location(); }, [&] { readsections(in); });
    return !opened;
}

void closeandplot(int newdrawset) {
    channelinput(1).close();
    drawset = newdrawset;
    plotgroups();
}

void showscene() {
    preopened = 0;
    runtransforms();
    channelinput(1).close();
    viewprompt = "AUTOMA";
    loadpalette();
    plotgroups();
    plotstate = 2;
}

void readwirecolours(textinput& in, int from, int to) {
    findkey(in, "WIRECOLORS:");
    for (int group = from; group <= to; ++group) wirecolour[group] = readvalue(in, "a wire colour (WIRECOLORS:)");
}

cubediagonal readdiagonal(textinput& in) {
    cubediagonal diagonal;
    for (value& coordinate : diagonal) coordinate = readvalue(in, "a corner coordinate of a cube row");
    return diagonal;
}

void expandcube(cubeslots& next, const cubediagonal& diagonal, const value& grade, const value& colour) {
    const auto& [x1, y1, z1, x2, y2, z2] = diagonal;
    const double dx = x2 - x1, dy = y2 - y1, dz = z2 - z1;
    const int p = next.point;
    const value corners[8][3] = {
        {x1, y1, z1},           {x1, y1, z1 + dz}, {x1, y1 + dy, z1}, {x1, y1 + dy, z1 + dz},
        {x1 + dx, y1 + dy, z1}, {x2, y2, z2},      {x1 + dx, y1, z1}, {x1 + dx, y1, z1 + dz},
    };
    for (int i = 0; i < 8; ++i) placepoint(p + i, corners[i][0], corners[i][1], corners[i][2]);
    for (int spare = p + 8; spare <= p + 9; ++spare) setpoint(spare, 0, 0, 0);
    static constexpr int edges[12][2] = {{0, 1}, {2, 3}, {4, 5}, {6, 7}, {0, 2}, {2, 4},
                                         {4, 6}, {6, 0}, {1, 3}, {3, 5}, {5, 7}, {7, 1}};
    for (const auto& edge : edges) {
        lineend1.set(next.line, p + edge[0]);
        lineend2.set(next.line, p + edge[1]);
        ++next.line;
    }
    static constexpr int faces[6][4] = {{0, 1, 2, 3}, {2, 3, 4, 5}, {4, 5, 6, 7},
                                        {6, 7, 0, 1}, {0, 2, 6, 4}, {1, 3, 7, 5}};  // corners 1, 3, 2, 4
    for (int face = 1; face <= 6; ++face) {
        const int q = next.quad + face - 1;
        const auto& corner = faces[face - 1];
        quad1.set(q, p + corner[0]);
        quad3.set(q, p + corner[1]);
        quad2.set(q, p + corner[2]);
        quad4.set(q, p + corner[3]);
        quadface.set(q, face);
        quadcolour.set(q, colour);
        if (face <= 4) quadgrade.set(q, grade);
    }
    next.point += 10;
    next.quad += 10;
}

int readsinglecubes(textinput& in, const char* key, int firstcube, int maxrows, int group, int line) {
    const int firstslot = 10 * firstcube + 1;
    cubeslots next{firstslot, firstslot, line};
    findkey(in, key);
    for (int c = firstcube; c < firstcube + maxrows; ++c) {
        const int label = readwholenumber(in, "the label of a cube row");
        const cubediagonal diagonal = readdiagonal(in);
        cubegrade.set(c, readvalue(in, "the grade of a cube row"));
        cubecolour.set(c, readvalue(in, "the colour of a cube row"));
        if (label == sentinel) break;
        expandcube(next, diagonal, cubegrade[c], cubecolour[c]);
    }
    linecount[group] = next.line - line;
    ptcount[firstcube / 200 + 1] = next.point - firstslot;
    return next.line;
}

}  // namespace tessaly

// Generates the element files of the 32 panels. Each of the eight types is described once, as tiles of a wall. Each has
// four files: for the complete panel, and for the panel cut at its left end, its right end or both. A panel is in the
// plane Y = 0, and its outside faces minus Y. Seen from outside, X increases from 0 at the left to 208 at the right,
// and Z from 0 at the bottom to 128, in model units. Tiles do not overlap, so their drawing order does not matter. The
// outer 16 units at each end are one vertical strip in front of the post, where neighbouring panels overlap. makepanels
// FOLDER writes the 32 files st-panels-<type>-<ends>.txt.
#include "tools/generator.h"
#include "tools/shape.h"

#include <algorithm>
#include <fstream>
#include <utility>

namespace tessaly {

namespace {

// ---- sizes, in model units ------------------------------------------------------------
constexpr int bay = 192;                     // from the middle of a post to the middle of the next
constexpr int postside = 16;                 // thickness of a post
constexpr int storey = 128;                  // height of a panel
constexpr int panellength = bay + postside;  // a panel extends in front of the posts at both ends

// ---- colours: the first of three consecutive entries of pals/tessaly.txt -------------------
namespace paint {  // clang-format off
constexpr int
    orange = 13,     orangerib = 16,   orangetrim = 19,
    yellow = 22,     yellowboard = 25, yellowtrim = 28,
    cream = 31,      creamtrim = 34,   sash = 37,        glass = 40,
    doorred = 43,    doorredin = 46,   doorgreen = 49,   doorgreenin = 52, brass = 55,
    orangewire = 70, yellowwire = 73,  doorwire = 76,    glasswire = 79;
}  // clang-format on

// Line groups of a panel. An edge of two pieces is a line of the group with the lower number.
enum : int { doorgroup = 1, glassgroup = 2, sashgroup = 3, wallgroup = 4, ribgroup = 5 };

// A flat piece of wall. Its corners 1, 2, 3, 4 are bottom left, bottom right, top left and top right. Framing lines
// divide it into columns and rows; 0 if there are none.
struct piece {
    int group, colour;
    std::array<corner, 4> corners;
    int columns, rows;
};

struct panel {
    const char *name, *title;
    std::vector<piece> pieces;
    std::array<int, 5> wirecolours;  // palette entries of the line groups
};

piece tile(int group, int colour, double x0, double x1, double z0, double z1, int columns = 0, int rows = 0) {
    return {group, colour, {{{x0, z0}, {x1, z0}, {x0, z1}, {x1, z1}}}, columns, rows};
}

// ---- shared by all panels: top of the plinth, bottom of the cornice, and the area between the posts
constexpr double plinth = 12, cornice = 116, left = postside, right = bay;

struct wallcolours {
    int face, alternate, trim;  // ribs and boards have the first two in turn
};
constexpr wallcolours orangewall{paint::orange, paint::orangerib, paint::orangetrim};
constexpr wallcolours yellowwall{paint::yellow, paint::yellowboard, paint::yellowtrim};
constexpr wallcolours doorwall{paint::cream, paint::cream, paint::creamtrim};

// Returns the strips at the posts and the band at the top, which every panel has.
std::vector<piece> frame(const wallcolours& w) {
    return {tile(wallgroup, w.trim, 0, left, 0, storey, 1, 1),
            tile(wallgroup, w.trim, right, panellength, 0, storey, 1, 1),
            tile(wallgroup, w.trim, left, right, cornice, storey, 0, 1)};
}

// Returns the frame with the band at the bottom, which panels without doors have.
std::vector<piece> closedframe(const wallcolours& w) {
    std::vector<piece> p = frame(w);
    p.push_back(tile(wallgroup, w.trim, left, right, 0, plinth, 0, 1));
    return p;
}

void operator+=(std::vector<piece>& all, const std::vector<piece>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

std::vector<piece> ribs(const wallcolours& w) {
    std::vector<piece> p = closedframe(w);
    for (int rib = 0; rib < 11; rib++)
        p.push_back(
            tile(ribgroup, rib % 2 ? w.alternate : w.face, left + rib * 16, left + rib * 16 + 16, plinth, cornice));
    return p;
}

std::vector<piece> boards(const wallcolours& w) {
    std::vector<piece> p = closedframe(w);
    for (int board = 0; board < 8; board++)
        p.push_back(tile(ribgroup, board % 2 ? w.alternate : w.face, left, right, plinth + board * 13,
                         plinth + board * 13 + 13));
    return p;
}

// Returns a window of several panes side by side in white sashes. Framing lines are the bars of each pane.
std::vector<piece> window(double x0, double x1, double z0, double z1, int panes, int columns, int rows) {
    constexpr double sashwidth = 4;
    std::vector<piece> p{tile(sashgroup, paint::sash, x0, x1, z0, z0 + sashwidth),
                         tile(sashgroup, paint::sash, x0, x1, z1 - sashwidth, z1)};
    const double width = (x1 - x0 - sashwidth * (panes + 1)) / panes;
    double x = x0;
    for (int n = 0; n <= panes; n++, x += sashwidth + width) {
        p.push_back(tile(sashgroup, paint::sash, x, x + sashwidth, z0 + sashwidth, z1 - sashwidth));
        if (n == panes) break;
        p.push_back(tile(glassgroup, paint::glass, x + sashwidth, x + sashwidth + width, z0 + sashwidth, z1 - sashwidth,
                         columns, rows));
    }
    return p;
}

// A row of windows of equal width, with equal widths of wall between and beside them.
struct windowrow {
    int count;
    double width, sill, lintel;
    int panes, columns, rows;  // panes per window; columns and rows into which bars divide a pane
};

std::vector<piece> windows(const wallcolours& w, const windowrow& r) {
    std::vector<piece> p = closedframe(w);
    p.push_back(tile(wallgroup, w.face, left, right, plinth, r.sill));
    p.push_back(tile(wallgroup, w.face, left, right, r.lintel, cornice));
    const double pier = (right - left - r.count * r.width) / (r.count + 1);
    double x = left;
    for (int n = 0; n < r.count; n++) {
        if (pier > 0) p.push_back(tile(wallgroup, w.face, x, x + pier, r.sill, r.lintel));
        p += window(x + pier, x + pier + r.width, r.sill, r.lintel, r.panes, r.columns, r.rows);
        x += pier + r.width;
    }
    if (pier > 0) p.push_back(tile(wallgroup, w.face, x, right, r.sill, r.lintel));
    return p;
}

// Returns a row of doors of equal width: each has a frame of stiles and rails, a pane in its upper half, an infill in
// its lower half, and a brass handle.
std::vector<piece> doors(const wallcolours& w, int count, double width, int leaf, int infill) {
    constexpr double stile = 6;                                                            // width
    constexpr double foot = 6, middle = 50, panebottom = 56, panetop = 92, doortop = 100;  // heights above the floor
    constexpr double handlebottom = 42, handletop = 50;
    std::vector<piece> p = frame(w);
    p.push_back(tile(wallgroup, w.face, left, right, doortop, cornice));
    const double pier = (right - left - count * width) / (count + 1);
    double x = left;
    for (int n = 0; n < count; n++) {
        p.push_back(tile(wallgroup, w.face, x, x + pier, 0, doortop));
        x += pier;
        const double in = x + stile, out = x + width - stile;
        p += {tile(doorgroup, leaf, x, in, 0, doortop),
              tile(doorgroup, leaf, in, out, 0, foot),
              tile(doorgroup, infill, in, out, foot, middle),
              tile(doorgroup, leaf, in, out, middle, panebottom),
              tile(glassgroup, paint::glass, in, out, panebottom, panetop),
              tile(doorgroup, leaf, in, out, panetop, doortop),
              tile(doorgroup, leaf, out, x + width, 0, handlebottom),
              tile(doorgroup, paint::brass, out, x + width, handlebottom, handletop),
              tile(doorgroup, leaf, out, x + width, handletop, doortop)};
        x += width;
    }
    p.push_back(tile(wallgroup, w.face, x, right, 0, doortop));
    return p;
}

// Returns an octagonal window in the middle, with three panes in a white sash, and the wall around it.
std::vector<piece> octagon(const wallcolours& w) {
    constexpr double middle = panellength / 2.0, height = 64;
    struct ring {
        double reach, halfside;  // from the middle to a side; half the length of a side
        // Return a corner of the octagon on a vertical or horizontal side: left for xsign -1, right for 1; below the
        // middle for zsign -1, above it for 1.
        corner onvertical(int xsign, int zsign) const { return {middle + xsign * reach, height + zsign * halfside}; }
        corner onhorizontal(int xsign, int zsign) const { return {middle + xsign * halfside, height + zsign * reach}; }
    };
    constexpr ring out{44, 18}, in{39, 16};
    const double x0 = middle - out.reach, x1 = middle + out.reach, z0 = height - out.reach, z1 = height + out.reach;
    std::vector<piece> p = closedframe(w);
    p += {tile(wallgroup, w.face, left, right, plinth, z0), tile(wallgroup, w.face, left, right, z1, cornice),
          tile(wallgroup, w.face, left, x0, z0, z1), tile(wallgroup, w.face, x1, right, z0, z1)};
    const auto addpiece = [&](int group, int colour, corner one, corner two, corner three, corner four,
                              int columns = 0) {
        p.push_back({group, colour, {{one, two, three, four}}, columns, 0});
    };
    for (const int sign : {-1, 1}) {
        for (const int zsign : {-1, 1}) {
            const corner outer{middle + sign * out.reach, height + zsign * out.reach};
            addpiece(wallgroup, w.face, outer, out.onhorizontal(sign, zsign), out.onvertical(sign, zsign),
                     out.onvertical(sign, zsign));
            addpiece(sashgroup, paint::sash, out.onhorizontal(sign, zsign), out.onvertical(sign, zsign),
                     in.onhorizontal(sign, zsign), in.onvertical(sign, zsign));
        }
        addpiece(sashgroup, paint::sash, out.onvertical(sign, -1), out.onvertical(sign, 1), in.onvertical(sign, -1),
                 in.onvertical(sign, 1));
        addpiece(sashgroup, paint::sash, out.onhorizontal(-1, sign), out.onhorizontal(1, sign),
                 in.onhorizontal(-1, sign), in.onhorizontal(1, sign));
        addpiece(glassgroup, paint::glass, in.onvertical(-1, sign), in.onvertical(1, sign), in.onhorizontal(-1, sign),
                 in.onhorizontal(1, sign), 2);
    }
    addpiece(glassgroup, paint::glass, in.onvertical(-1, -1), in.onvertical(1, -1), in.onvertical(-1, 1),
             in.onvertical(1, 1), 2);
    p.back().rows = 1;
    return p;
}

std::vector<panel> panels() {
    using paint::doorwire, paint::glasswire, paint::orangewire, paint::yellowwire;
    const std::array orangewires{0, glasswire, glasswire + 1, orangewire, orangewire + 1};
    const std::array yellowwires{0, glasswire, glasswire + 1, yellowwire, yellowwire + 1};
    const auto doorwires = [](int leafwire) { return std::array{leafwire, glasswire, 0, doorwire, 0}; };
    using namespace paint;
    return {
        {"1or", "Orange panel 1: upright ribs", ribs(orangewall), orangewires},
        {"2or", "Orange panel 2: three windows", windows(orangewall, {3, 42, 42, 100, 1, 2, 2}), orangewires},
        {"3or", "Orange panel 3: one tall window", windows(orangewall, {1, 72, 18, 108, 2, 1, 4}), orangewires},
        {"1yel", "Yellow panel 1: level boards", boards(yellowwall), yellowwires},
        {"2yel", "Yellow panel 2: a band of glass", windows(yellowwall, {1, 176, 50, 98, 4, 1, 1}), yellowwires},
        {"3yel", "Yellow panel 3: a window with eight sides", octagon(yellowwall), yellowwires},
        {"2door", "Panel with two doors", doors(doorwall, 2, 46, doorred, doorredin), doorwires(doorwire + 1)},
        {"4door", "Panel with four doors", doors(doorwall, 4, 34, doorgreen, doorgreenin), doorwires(doorwire + 2)},
    };
}

struct ends {
    const char *name, *note;
    double from, to;  // X, model units
};

constexpr ends cuts[] = {
    // clang-format off
    { "full", "Both ends reach over their posts.",             0,    panellength },
    { "left", "Cut on the left by the width of a post.",       left, panellength },
    { "righ", "Cut on the right by the width of a post.",      0,    right },
    { "both", "Cut on both sides by the width of a post.",     left, right },
};  // clang-format on

// Adds the bars of a pane as lines, at the framing lines of its solid face.
void addbars(shape& s, const piece& pane) {
    const auto& [one, two, three, four] = pane.corners;
    const auto along = [](corner from, corner to, int part, int parts) {
        return corner{from.x + (to.x - from.x) * part / parts, from.z + (to.z - from.z) * part / parts};
    };
    for (int n = 1; n < pane.columns; n++)
        s.addline(glassgroup, along(one, two, n, pane.columns), along(three, four, n, pane.columns));
    for (int n = 1; n < pane.rows; n++)
        s.addline(glassgroup, along(one, three, n, pane.rows), along(two, four, n, pane.rows));
}

// Returns the panel without the pieces that are cut off. These are the strips at its ends, so no piece has to be
// divided.
shape cut(const panel& p, const ends& e) {
    shape s;
    s.title = std::string(p.title) + " (" + e.name + ")";
    s.note = e.note;
    s.wirecolours = p.wirecolours;
    const auto within = [&](corner c) { return c.x >= e.from && c.x <= e.to; };
    for (const piece& q : p.pieces) {
        if (!std::all_of(q.corners.begin(), q.corners.end(), within)) continue;
        s.addface(q.group, q.colour, q.corners, q.columns, q.rows);
        if (q.group == glassgroup) addbars(s, q);
    }
    s.splitlines();
    return s;
}

void makeall(const std::string& folder) {
    for (const panel& p : panels())
        for (const ends& e : cuts) {
            std::ofstream file(folder + "/st-panels-" + p.name + "-" + e.name + ".txt", std::ios::binary);
            file.exceptions(std::ios::failbit | std::ios::badbit);
            file << cut(p, e).text() << std::flush;
        }
}

}  // namespace

}  // namespace tessaly

int main(int argc, char** argv) {
    return tessaly::rungenerator(argc, "makepanels FOLDER", [argv] { tessaly::makeall(argv[1]); });
}

// The 32 panels: eight types, each described once as tiles of a wall sheet, and cut at its ends into four files.
// A panel stands in the plane Y = 0 with its outside towards minus Y; X runs from 0 on the left, seen from outside, to
// 208 on the right, Z from 0 to 128. The tiles lie edge to edge, so that none can cover another whatever the eye sees
// first. The outer 16 of all panels of a type are one upright strip: neighbours overlap there, over the post.
#include "tools/shape.h"
#include "tools/shipped.h"

#include <algorithm>
#include <utility>

namespace tessaly {

namespace {

// Line groups of a panel. An edge that two pieces share belongs to the lower group.
enum : int { doorgroup = 1, glassgroup = 2, wallgroup = 3, ribgroup = 4 };

// A flat piece of wall by its corners 1, 2, 3, 4 as (x, z): below left, below right, above left, above right.
// Framing cuts it into columns and rows; the ribs of a wall are also drawn as wires.
struct piece {
    int group, colour;
    std::pair<double, double> at[4];
    int columns, rows;
};

struct panel {
    const char *name, *title;
    std::vector<piece> pieces;
    std::array<int, 4> wires;
};

piece tile(int group, int colour, double x0, double x1, double z0, double z1, int columns = 0, int rows = 0) {
    return {group, colour, {{x0, z0}, {x1, z0}, {x0, z1}, {x1, z1}}, columns, rows};
}

// ---- what all panels share: heights of plinth and cornice, the field between the posts -----
constexpr double plinth = 12, cornice = 116, left = thick, right = bay;

struct wall {
    int face, rib, trim;
};
constexpr wall orangewall{colour::orange, colour::orangerib, colour::orangetrim};
constexpr wall yellowwall{colour::yellow, colour::yellowboard, colour::yellowtrim};
constexpr wall doorwall{colour::cream, colour::cream, colour::creamtrim};

// The strips over the posts, and the bands above and, where the wall reaches the ground, below.
std::vector<piece> frame(const wall& w, bool ground) {
    std::vector<piece> p{tile(wallgroup, w.trim, 0, left, 0, storey, 1, 1),
                         tile(wallgroup, w.trim, right, wallong, 0, storey, 1, 1),
                         tile(wallgroup, w.trim, left, right, cornice, storey, 0, 1)};
    if (ground) p.push_back(tile(wallgroup, w.trim, left, right, 0, plinth, 0, 1));
    return p;
}

void operator+=(std::vector<piece>& all, const std::vector<piece>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

std::vector<piece> ribs(const wall& w) {
    std::vector<piece> p;
    for (int rib = 0; rib < 11; rib++)
        p.push_back(tile(ribgroup, rib % 2 ? w.rib : w.face, left + rib * 16, left + rib * 16 + 16, plinth, cornice));
    return p;
}

std::vector<piece> boards(const wall& w) {
    std::vector<piece> p;
    for (int board = 0; board < 8; board++)
        p.push_back(
            tile(ribgroup, board % 2 ? w.rib : w.face, left, right, plinth + board * 13, plinth + board * 13 + 13));
    return p;
}

// Windows of one width in a row, the same stretch of wall between and beside them.
std::vector<piece> windows(const wall& w, int count, double width, double sill, double lintel, int columns, int rows) {
    std::vector<piece> p{tile(wallgroup, w.face, left, right, plinth, sill),
                         tile(wallgroup, w.face, left, right, lintel, cornice)};
    const double pier = (right - left - count * width) / (count + 1);
    double x = left;
    for (int n = 0; n < count; n++) {
        if (pier > 0) p.push_back(tile(wallgroup, w.face, x, x + pier, sill, lintel));
        p.push_back(tile(glassgroup, colour::glass, x + pier, x + pier + width, sill, lintel, columns, rows));
        x += pier + width;
    }
    if (pier > 0) p.push_back(tile(wallgroup, w.face, x, right, sill, lintel));
    return p;
}

// Doors of one width in a row: stiles, a rail above, a pane, a filled lower half; a brass handle on the right stile.
std::vector<piece> doors(const wall& w, int count, double width, int leaf) {
    constexpr double head = 100, stile = 6, pane = 56, rail = 90, handle = 42, grip = 50;
    std::vector<piece> p{tile(wallgroup, w.face, left, right, head, cornice)};
    const double pier = (right - left - count * width) / (count + 1);
    double x = left;
    for (int n = 0; n < count; n++) {
        p.push_back(tile(wallgroup, w.face, x, x + pier, 0, head));
        x += pier;
        const double in = x + stile, out = x + width - stile;
        p += {tile(doorgroup, leaf, x, in, 0, head),
              tile(doorgroup, leaf, in, out, 0, pane, 1, 1),
              tile(glassgroup, colour::glass, in, out, pane, rail, 1, 1),
              tile(doorgroup, leaf, in, out, rail, head),
              tile(doorgroup, leaf, out, x + width, 0, handle),
              tile(doorgroup, colour::brass, out, x + width, handle, grip),
              tile(doorgroup, leaf, out, x + width, grip, head)};
        x += width;
    }
    p.push_back(tile(wallgroup, w.face, x, right, 0, head));
    return p;
}

// A window of eight sides in the middle: three panes, and the wall around it in bands and corners.
std::vector<piece> octagon(const wall& w) {
    constexpr double middle = wallong / 2.0, height = 64, reach = 42, half = 18;
    constexpr double x0 = middle - reach, x1 = middle - half, x2 = middle + half, x3 = middle + reach;
    constexpr double z0 = height - reach, z1 = height - half, z2 = height + half, z3 = height + reach;
    const auto any = [](int group, int colour, std::pair<double, double> one, std::pair<double, double> two,
                        std::pair<double, double> three, std::pair<double, double> four, int columns = 0,
                        int rows = 0) {
        return piece{group, colour, {one, two, three, four}, columns, rows};
    };
    return {tile(wallgroup, w.face, left, right, plinth, z0),
            tile(wallgroup, w.face, left, right, z3, cornice),
            tile(wallgroup, w.face, left, x0, z0, z3),
            tile(wallgroup, w.face, x3, right, z0, z3),
            any(wallgroup, w.face, {x0, z0}, {x1, z0}, {x0, z1}, {x0, z1}),
            any(wallgroup, w.face, {x2, z0}, {x3, z0}, {x3, z1}, {x3, z1}),
            any(wallgroup, w.face, {x0, z2}, {x0, z2}, {x0, z3}, {x1, z3}),
            any(wallgroup, w.face, {x3, z2}, {x3, z2}, {x2, z3}, {x3, z3}),
            any(glassgroup, colour::glass, {x1, z0}, {x2, z0}, {x0, z1}, {x3, z1}, 2, 1),
            any(glassgroup, colour::glass, {x0, z1}, {x3, z1}, {x0, z2}, {x3, z2}, 2, 1),
            any(glassgroup, colour::glass, {x0, z2}, {x3, z2}, {x1, z3}, {x2, z3}, 2, 1)};
}

std::vector<panel> panels() {
    const std::array orangewires{0, colour::glasswire, colour::orangewire, colour::orangewire + 1};
    const std::array yellowwires{0, colour::glasswire, colour::yellowwire, colour::yellowwire + 1};
    const auto doorwires = [](int door) {
        return std::array{door, colour::glasswire, colour::doorwire, colour::doorwire};
    };
    const auto made = [](const wall& w, bool ground, const std::vector<piece>& field) {
        auto p = frame(w, ground);
        p += field;
        return p;
    };
    return {
        {"1or", "Orange panel 1: upright ribs", made(orangewall, true, ribs(orangewall)), orangewires},
        {"2or", "Orange panel 2: a row of three windows",
         made(orangewall, true, windows(orangewall, 3, 40, 44, 98, 2, 2)), orangewires},
        {"3or", "Orange panel 3: one tall window", made(orangewall, true, windows(orangewall, 1, 64, 20, 108, 2, 4)),
         orangewires},
        {"1yel", "Yellow panel 1: level boards", made(yellowwall, true, boards(yellowwall)), yellowwires},
        {"2yel", "Yellow panel 2: a band of glass", made(yellowwall, true, windows(yellowwall, 4, 44, 52, 96, 1, 1)),
         yellowwires},
        {"3yel", "Yellow panel 3: a window with eight sides", made(yellowwall, true, octagon(yellowwall)), yellowwires},
        {"2door", "Panel with two doors", made(doorwall, false, doors(doorwall, 2, 44, colour::doorred)),
         doorwires(colour::doorwire + 1)},
        {"4door", "Panel with four doors", made(doorwall, false, doors(doorwall, 4, 32, colour::doorgreen)),
         doorwires(colour::doorwire + 2)},
    };
}

struct ends {
    const char *name, *says;
    double from, to;  // X, model units
};

constexpr ends cuts[] = {
    // clang-format off
    { "full", "Both ends reach over their posts.",             0,    wallong },
    { "left", "Cut on the left by the width of a post.",       left, wallong },
    { "righ", "Cut on the right by the width of a post.",      0,    right },
    { "both", "Cut on both sides by the width of a post.",     left, right },
};  // clang-format on

// A piece goes whole or not at all: the pieces at the ends are as wide as the cut.
shape cut(const panel& p, const ends& e) {
    shape s;
    s.title = std::string(p.title) + " (" + e.name + ")";
    s.notes = {e.says, "Seen from outside X runs to the right; the outside looks towards minus Y; Z is up."};
    s.wires = {p.wires[0], p.wires[1], p.wires[2], p.wires[3], 0};
    const auto at = [](std::pair<double, double> c) { return corner{c.first, 0, c.second}; };
    const auto within = [&](std::pair<double, double> c) { return c.first >= e.from && c.first <= e.to; };
    for (const int group : {doorgroup, glassgroup, wallgroup, ribgroup})
        for (const piece& q : p.pieces)
            if (q.group == group && std::all_of(std::begin(q.at), std::end(q.at), within))
                s.face(group, q.colour, at(q.at[0]), at(q.at[1]), at(q.at[2]), at(q.at[3]), q.columns, q.rows);
    s.split();
    return s;
}

}  // namespace

std::vector<shippedfile> panelfiles() {
    std::vector<shippedfile> files;
    for (const panel& p : panels())
        for (const ends& e : cuts)
            files.push_back({std::string("datah/st-panels-") + p.name + "-" + e.name + ".txt", cut(p, e).text()});
    return files;
}

}  // namespace tessaly

// What the program shows before anything is built: start.txt with the default view, the land, the axes, the layout
// grid, and the nine-storey cube. Coordinates are world units: the plan's middle is the origin, Z is up, the ground is
// at 0. No point stands on the vertical line through the plan's middle, where the focus stands at first: a point in the
// focus would have no direction on the picture.
#include "tools/shape.h"
#include "tools/shipped.h"

#include <cmath>
#include <numbers>

namespace tessaly {

namespace {

constexpr double halfx = planx, halfy = plany;  // world units: half of the plan, posts included

corner polar(double radius, double degrees, double z) {
    const double a = degrees * std::numbers::pi / 180;
    return {std::round(radius * std::cos(a)), std::round(radius * std::sin(a)), std::round(z)};
}

void rectangle(shape& s, int group, double x0, double y0, double x1, double y1) {
    s.line(group, {x0, y0, 0}, {x1, y0, 0});
    s.line(group, {x1, y0, 0}, {x1, y1, 0});
    s.line(group, {x1, y1, 0}, {x0, y1, 0});
    s.line(group, {x0, y1, 0}, {x0, y0, 0});
}

// A fir of three crowns, each seen as a triangle from all sides since it stands in two planes.
void fir(shape& s, double x, double y, double height) {
    s.line(4, {x, y, 0}, {x, y, height * 0.2});
    for (int crown = 0; crown < 3; crown++) {
        const double below = height * (0.2 + 0.22 * crown), tip = height * (0.56 + 0.22 * crown);
        const double reach = height * (0.22 - 0.05 * crown);
        for (const auto& [dx, dy] : {std::pair{reach, 0.0}, std::pair{0.0, reach}}) {
            s.line(3, {x - dx, y - dy, below}, {x + dx, y + dy, below});
            s.line(3, {x - dx, y - dy, below}, {x, y, tip});
            s.line(3, {x + dx, y + dy, below}, {x, y, tip});
        }
    }
}

// The plot's edge, hills all around on the horizon, firs behind the plan.
shape land() {
    shape s;
    s.title = "The land around the plan: the edge of the plot; hills on the horizon; some firs";
    s.wires = {paint::landwire, paint::landwire + 1, paint::treewire, paint::treewire + 1, 0};
    rectangle(s, 1, -halfx - 24, -halfy - 24, halfx + 24, halfy + 24);
    constexpr double far = 16000, step = 2.5;
    const auto height = [](double degrees) {
        const double a = degrees * std::numbers::pi / 180;
        return 520 + 240 * std::sin(7 * a) + 170 * std::sin(17 * a + 1) + 110 * std::sin(31 * a + 2);
    };
    for (double a = 0; a < 360; a += step) {
        const double next = a + step == 360 ? 0 : a + step;
        s.line(2, polar(far, a, height(a)), polar(far, next, height(next)));
        s.line(1, polar(far, a, 0), polar(far, next, 0));
    }
    struct place {
        double x, y, height;
    };
    for (const place& p : {place{-620, 240, 190},
                           {-700, 380, 240},
                           {-640, 520, 170},
                           {-760, 620, 230},
                           {-600, 690, 200},
                           {-520, 800, 180},
                           {-700, 850, 250},
                           {-380, 830, 220},
                           {-250, 780, 170}})
        fir(s, p.x, p.y, p.height);
    return s;
}

// An arrow head with four barbs at the tip; along is the arrow's direction, side and over are across it.
void arrowhead(shape& s, int group, corner tip, corner along, corner side, corner over) {
    constexpr double length = 36, width = 12;
    for (const double w : {-width, width}) {
        s.line(group, tip,
               {tip.x - length * along.x + w * side.x, tip.y - length * along.y + w * side.y,
                tip.z - length * along.z + w * side.z});
        s.line(group, tip,
               {tip.x - length * along.x + w * over.x, tip.y - length * along.y + w * over.y,
                tip.z - length * along.z + w * over.z});
    }
}

// Strokes of letters and digits on a field of 2 by 4, from left below.
struct stroke {
    double x0, z0, x1, z1;
};

std::vector<stroke> letter(char c) {
    switch (c) {
    case 'X': return {{0, 0, 2, 4}, {0, 4, 2, 0}};
    case 'Y': return {{1, 0, 1, 2}, {1, 2, 0, 4}, {1, 2, 2, 4}};
    case 'Z': return {{0, 4, 2, 4}, {2, 4, 0, 0}, {0, 0, 2, 0}};
    case '1': return {{0.3, 3, 1, 4}, {1, 4, 1, 0}, {0.3, 0, 1.7, 0}};
    case '2': return {{0, 3.2, 0.5, 4}, {0.5, 4, 1.5, 4}, {1.5, 4, 2, 3.2}, {2, 3.2, 0, 0}, {0, 0, 2, 0}};
    case '3': return {{0, 4, 2, 4}, {2, 4, 0.9, 2.4}, {0.9, 2.4, 2, 1.6}, {2, 1.6, 1.2, 0}, {1.2, 0, 0, 0.6}};
    default: return {};
    }
}

// Stands upright on the point, turned towards the default view, so large that the field's unit is size.
void write(shape& s, int group, char c, corner at, double size) {
    const double way = size * std::numbers::sqrt2 / 2;
    const auto place = [&](double x, double z) {
        return corner{std::round((at.x + (x - 1) * way) * 10) / 10, std::round((at.y + (x - 1) * way) * 10) / 10,
                      at.z + z * size};
    };
    for (const stroke& t : letter(c)) s.line(group, place(t.x0, t.z0), place(t.x1, t.z1));
}

// The three directions, at the corner of the plan from which the layouts count, and the height of the first floors.
shape axes() {
    constexpr double ox = -halfx - 8, oy = -halfy - 8, reach = 2 * bay, top = 3 * storey + 24;
    shape s;
    s.title = "The directions X and Y of the layouts and Z with a mark at each floor";
    s.wires = {paint::axisx, paint::axisy, paint::axisz, paint::axisz + 1, 0};
    s.line(1, {ox, oy, 0}, {ox + reach, oy, 0});
    arrowhead(s, 1, {ox + reach, oy, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    write(s, 1, 'X', {ox + reach + 30, oy, 0}, 11);
    s.line(2, {ox, oy, 0}, {ox, oy + reach, 0});
    arrowhead(s, 2, {ox, oy + reach, 0}, {0, 1, 0}, {1, 0, 0}, {0, 0, 1});
    write(s, 2, 'Y', {ox, oy + reach + 30, 0}, 11);
    s.line(3, {ox, oy, 0}, {ox, oy, top});
    arrowhead(s, 3, {ox, oy, top}, {0, 0, 1}, {1, 0, 0}, {0, 1, 0});
    write(s, 3, 'Z', {ox + 30, oy + 30, top - 44}, 11);
    for (int floor = 1; floor <= 3; floor++) {
        const double z = (floor - 1) * storey;
        s.line(4, {ox - 8, oy - 8, z}, {ox + 8, oy + 8, z});
        write(s, 4, static_cast<char>('0' + floor), {ox + 20, oy + 20, z + 30}, 6);
    }
    return s;
}

// Lines through the posts' middles, bay by bay, so that an eye inside the plan still sees those that lie before it.
shape grid() {
    shape s;
    s.title = "The layout grid: 5 by 7 bays of 192 on the ground; and the foot of each post";
    s.notes = {"The program draws this group again at each change of the view."};
    s.wires = {paint::gridwire, paint::gridwire + 1, 0, 0, 0};
    constexpr double left = -halfx + thick / 2.0, front = -halfy + thick / 2.0, half = thick / 2.0;
    for (int i = 0; i <= baysx; i++) {
        for (int j = 0; j <= baysy; j++) {
            const double x = left + i * bay, y = front + j * bay;
            if (i < baysx) s.line(1, {x + half, y, 0}, {x + bay - half, y, 0});
            if (j < baysy) s.line(1, {x, y + half, 0}, {x, y + bay - half, 0});
            rectangle(s, 2, x - half, y - half, x + half, y + half);
        }
    }
    return s;
}

const char* const nocube = "0, 0, 0, 0, 0, 0, 0, ";

// A cube around the plan for each of the first nine floors, one on the other.
std::string cube() {
    std::string out = "Nine storeys around the plan: a row of cubes that climbs along Z\n\nWIRECOLORS:\n";
    for (int group = 6; group <= 9; group++) out += std::to_string(paint::cubewire) + (group < 9 ? ", " : "\n\n");
    out += "One cube row: two corners; step to the next cube; number of the last; grade; colour\nAUTOCUBE000:\n";
    out += "-488, -680, 0, 488, 680, 128, 128, 8, 0, " + std::to_string(paint::steelside) + "\n\n";
    out += "No cubes in the other rows: their last number lies below their first\n";
    for (int row = 100; row <= 500; row += 100)
        out += "AUTOCUBE" + std::to_string(row) + ":\n" + nocube + std::to_string(row - 1) + ", 0, 0\n";
    out += "AUTOCUBE600:\n9999, 0, 0, 0, 0, 0, 0, 0, 0\n\n";
    return out + "No framing; nothing is moved\nAUTOFRAMING1:\n0, 0, 9999\nAUTOFRAMING2:\n0, 0, 9999\n\nTRAN\nSTOP\n";
}

// A view: where the eye stands, what it looks at, how large it is shown, where on the picture.
struct view {
    const char *key, *says;
    double eye[3], focus[3], mag, up, right;
};

constexpr view views[] = {
    // clang-format off
//    key              what it shows                                      eye                  focus          mag     shifts
    { "DEFAULTVIEW:",  "The view that the program starts with",           { 1850, -1850, 830 }, { 0, 0, 280 }, 0.056, 170, -270 },
    { "HighZ(full)",   "Nearly straight down; the whole plan",            { 60, -60, 2600 },    { 0, 0, 0 },   0.056, 200, -280 },
    { "HighZ(zoom)",   "Nearly straight down; its middle bays",           { 60, -60, 2600 },    { 0, 0, 0 },   0.12,  200, -280 },
    { "FarX(full)",    "From far along X; ten floors",                    { 3600, 12, 700 },    { 0, 0, 560 }, 0.05,  200, -280 },
    { "FarX(zoom)",    "From far along X; the lower floors",              { 3600, 12, 500 },    { 0, 0, 200 }, 0.1,   200, -280 },
    { "FarY(full)",    "From far along Y; ten floors",                    { 12, -3600, 700 },   { 0, 0, 560 }, 0.05,  200, -280 },
    { "FarY(zoom)",    "From far along Y; the lower floors",              { 12, -3600, 500 },   { 0, 0, 200 }, 0.1,   200, -280 },
    { "Perspective1",  "From the right in front",                         { 1850, -1850, 830 },  { 0, 0, 280 }, 0.056, 170, -270 },
    { "Perspective2",  "From the right behind",                           { 1850, 1850, 830 },   { 0, 0, 280 }, 0.056, 170, -270 },
    { "Perspective3",  "From the left behind",                            { -1850, 1850, 830 },  { 0, 0, 280 }, 0.056, 170, -270 },
    { "Perspective4",  "From the left in front",                          { -1850, -1850, 830 }, { 0, 0, 280 }, 0.056, 170, -270 },
    { "Perspective5",  "From the height of a tower's top; ten floors",    { 2100, -2300, 1700 }, { 0, 0, 560 }, 0.04,  170, -270 },
    { "Perspective6",  "From the height of a passer-by",                  { 1500, -1900, 70 },   { 0, 0, 240 }, 0.056, 170, -270 },
};  // clang-format on

std::string number(double n) {
    std::string s = std::to_string(n);
    s.erase(s.find_last_not_of('0') + 1);
    if (s.back() == '.') s.pop_back();
    return s;
}

std::string startfile() {
    std::string out =
        "What the program reads when it starts. Text between the parts is free; the words that open a part\n"
        "must stay as they are and in this order.\n\n"
        "Each view has nine numbers: where the eye stands (X Y Z); the point it looks at (X Y Z);\n"
        "the magnification; how far the picture is shifted up and to the right.\n";
    for (const view& v : views) {
        out += std::string("\n") + v.says + "\n" + v.key + "\n";
        for (const double n : v.eye) out += number(n) + ", ";
        for (const double n : v.focus) out += number(n) + ", ";
        out += number(v.mag) + ", " + number(v.up) + ", " + number(v.right) + "\n";
    }
    out += "\nThe file of colours in the folder pals; without its ending\nDEFAULTPAL:\ntessaly\n";
    out += "\nThe background: red; green; blue\nBACKGROUNDCOLOR:\n226, 234, 240\n";
    out += "\nThree files of the folder datah that are shown one over the other; without their endings.\n"
           "The third stays for the changes of the view and so is the layout grid.\n"
           "DISPLAYSTARTGROUP1:\nst-land\n\nDISPLAYSTARTGROUP2:\nst-axes\n\nDISPLAYSTARTGROUP3:\nst-grid\n";
    return out;
}

}  // namespace

std::vector<shippedfile> scenefiles() {
    return {{"datah/start.txt", startfile()},
            {"datah/st-land.txt", land().text()},
            {"datah/st-axes.txt", axes().text()},
            {"datah/st-grid.txt", grid().text()},
            {"datah/az-cube.txt", cube()}};
}

}  // namespace tessaly

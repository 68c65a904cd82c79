// The shipped data, which users may edit: each element can be read, is complete and fits its position on the plan.
#include "building/layouts.h"
#include "data/elements.h"
#include "tests/session.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

using namespace tessaly;

namespace {

// Model units: from post to post; the layouts' X and Y of the world's origin. The last palette entry that has a name.
constexpr int bay = 192, planx = 488, plany = 680, lastnamed = 105;

using spot = std::array<double, 3>;  // x, y and z in an element file
using box = std::array<double, 6>;   // least x, y and z, then the greatest
using face = std::array<spot, 4>;    // its corners in the order around it

int whole(const value& v) { return static_cast<int>(static_cast<double>(v)); }

// Reads an element that is neither turned nor moved.
void read(const std::string& file) {
    datafile = file;
    placemode = 3;
    rotx = rotz = placez = 0;
    placex = planx;
    placey = plany;
    readelements();
}

spot point(const value& n) { return {basex[whole(n)], basey[whole(n)], basez[whole(n)]}; }

// The bounds of the points in the tables, relative to a position of the plan, rounded to hundredths.
box extentfrom(int x, int y) {
    box e{1e9, 1e9, 1e9, -1e9, -1e9, -1e9};
    const double origin[] = {double(planx - x), double(plany - y), 0};
    for (int n = 1; n <= whole(ptcount1); n++)
        for (std::size_t i = 0; i < 3; i++) {
            const double at = std::round((point(n)[i] + origin[i]) * 100) / 100;
            e[i] = std::min(e[i], at);
            e[i + 3] = std::max(e[i + 3], at);
        }
    return e;
}

// Whether a point of the plane along x and z lies within a face.
bool within(const face& f, double x, double z) {
    int left = 0, right = 0;
    for (std::size_t i = 0; i < 4; i++) {
        const spot &a = f[i], &b = f[(i + 1) % 4];
        const double side = (b[0] - a[0]) * (z - a[2]) - (b[2] - a[2]) * (x - a[0]);
        left += side > 0;
        right += side < 0;
    }
    return left == 0 || right == 0;
}

// Catches a hole in a wall, a face over another in one plane, a cut at the wrong end or of the wrong width.
void expecttiled(const std::vector<face>& faces, const std::string& cut) {
    const double from = cut == "left" || cut == "both" ? 16 : 0, to = cut == "righ" || cut == "both" ? 192 : 208;
    EXPECT_EQ(extentfrom(planx, plany), (box{from, 0, 0, to, 0, 128}));
    int wrong = 0;  // of points that lie on no edge
    for (double x = from + 0.4; x < to; ++x)
        for (double z = 0.3; z < 128; ++z)
            wrong += 1 != std::count_if(faces.begin(), faces.end(), [=](const face& f) { return within(f, x, z); });
    EXPECT_EQ(wrong, 0);
}

// Catches an element that is open: an edge without a face on each side of it.
void expectclosed(const std::vector<face>& faces) {
    std::map<std::pair<spot, spot>, int> sides;  // by the edge's ends
    for (const face& f : faces)
        for (std::size_t i = 0; i < 4; i++) ++sides[std::minmax(f[i], f[(i + 1) % 4])];
    EXPECT_EQ(sides.size(), 12u);
    for (const auto& [edge, count] : sides) EXPECT_EQ(count, 2);
}

}  // namespace

// Placement moves points 1 to 100 only; a corner that ends no line is not projected; an end row with corners
// would be painted.
TEST(data, elementsAreCompleteAndFollowTheRulesOfTheReader) {
    session s;
    s.start();
    int elements = 0;
    for (const auto& file : std::filesystem::directory_iterator("datah")) {
        const std::string name = file.path().filename();
        const bool panel = name.starts_with("st-panels-");
        if (!panel && name != "st-post.txt" && name != "st-beam.txt" && name != "st-roof.txt") continue;
        SCOPED_TRACE(name);
        ++elements;
        read(name);
        EXPECT_LE(ptcount1, 100);
        int lines = 0;
        for (int g = 1; g <= linegroups; g++) lines += whole(linecount[g]);
        std::set<int> ends;
        for (int n = 1; n <= lines; n++) ends.insert({whole(lineend1[n]), whole(lineend2[n])});
        EXPECT_LE(*ends.rbegin(), ptcount1);
        std::vector<face> faces;
        for (int n = 1; n <= clearedpoints; n++) {
            if (quad1[n] == 0 && quad2[n] == 0) continue;
            faces.push_back({point(quad1[n]), point(quad2[n]), point(quad4[n]), point(quad3[n])});
            for (const value& c : {quad1[n], quad2[n], quad3[n], quad4[n]}) EXPECT_TRUE(ends.contains(whole(c))) << n;
            EXPECT_LT(quadcolour[n], lastnamed) << "face " << n;
        }
        EXPECT_LE(faces.size(), 100u);
        if (panel)
            expecttiled(faces, name.substr(name.size() - 8, 4));
        else
            expectclosed(faces);
    }
    EXPECT_EQ(elements, 35);
}

// Catches steel that does not meet, walls beside the grid, a roof that leaves a gap, and a position whose record
// differs from the reference.
TEST(data, elementsAreDrawnAndRecordedAtTheirPositions) {
    const std::map<std::string, box> extents{
        {"postx", {0, -16, 0, 16, 0, 128}},     {"beamx", {0, 0, 112, 16, 176, 128}},
        {"vbeamx", {0, -16, 112, 176, 0, 128}}, {"roofx", {0, 0, 128, 208, 208, 136}},
        {"pan0x", {0, 0, 0, 208, 0, 128}},      {"pan180x", {-208, 0, 0, 0, 0, 128}},
        {"pan90x", {0, 0, 0, 0, 208, 128}},     {"pan270x", {0, -208, 0, 0, 0, 128}}};
    session s;
    s.start();
    for (const char* button : {"wiresolidbtn", "postbeambtn", "roofbtn", "orange1btn"}) s.click(button);
    for (const buttonposition& p : allbuttonpositions()) {
        s.click(positionname(p));
        EXPECT_EQ(extentfrom(p.x, p.y), extents.at(p.family->nameprefix)) << positionname(p);
    }
    for (const std::string file : {"girders1.txt", "panels1.txt", "roofs1.txt"})
        EXPECT_EQ(session::file("designs/" + file), session::file(TESSALY_SOURCE_DIR "/tests/places/" + file));
}

// A point above or below the middle of the plan, where the focus is, could not be projected. The grid's lines must run
// through the middles of the posts.
TEST(data, theOpeningSceneAvoidsTheMiddleAndRunsUnderThePosts) {
    session s;
    s.start();
    for (const char* name : {"st-land.txt", "st-axes.txt", "st-grid.txt"}) {
        read(name);
        for (int n = 1; n <= ptcount1; n++) EXPECT_FALSE(basex[n] == 0 && basey[n] == 0) << name << ": " << n;
    }
    EXPECT_EQ(extentfrom(0, 0), (box{0, 0, 0, 976, 1360, 0}));
    for (int n = 1; n <= linecount1; n++) {
        const spot a = point(lineend1[n]), b = point(lineend2[n]);
        EXPECT_EQ(std::fmod(a[0] == b[0] ? a[0] + planx - 8 : a[1] + plany - 8, bay), 0) << n;
    }
}

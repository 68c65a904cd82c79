// The shipped data, which users may edit: each element can be read, is complete, and fits its position on the plan.
#include "building/layouts.h"
#include "data/elements.h"
#include "tests/session.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

using namespace tessaly;

namespace {

constexpr int lastnamedcolour = 105;  // of the palette

using corner = std::array<double, 3>;  // x, y and z in an element file
using box = std::array<double, 6>;     // min x, y and z, then max
using face = std::array<corner, 4>;    // in the order around it

int toint(const value& v) { return static_cast<int>(static_cast<double>(v)); }

// Reads an element without rotating or moving it.
void readunmoved(const std::string& file) {
    datafile = file;
    placemode = 3;
    rotx = rotz = placez = 0;
    placex = planoriginx;
    placey = planoriginy;
    readelements();
}

corner point(const value& n) { return {basex[toint(n)], basey[toint(n)], basez[toint(n)]}; }

// Returns the bounds of the points in the tables relative to a position of the plan, rounded to hundredths.
box boundsfrom(int x, int y) {
    box e{1e9, 1e9, 1e9, -1e9, -1e9, -1e9};
    const double origin[] = {double(planoriginx - x), double(planoriginy - y), 0};
    for (int n = 1; n <= toint(ptcount1); n++)
        for (std::size_t i = 0; i < 3; i++) {
            const double at = std::round((point(n)[i] + origin[i]) * 100) / 100;
            e[i] = std::min(e[i], at);
            e[i + 3] = std::max(e[i + 3], at);
        }
    return e;
}

// Returns whether the point x, z is inside a face of a wall, which has y 0.
bool within(const face& f, double x, double z) {
    int left = 0, right = 0;
    for (std::size_t i = 0; i < 4; i++) {
        const corner &a = f[i], &b = f[(i + 1) % 4];
        const double side = (b[0] - a[0]) * (z - a[2]) - (b[2] - a[2]) * (x - a[0]);
        left += side > 0;
        right += side < 0;
    }
    return left == 0 || right == 0;
}

// Catches a hole in a wall, overlapping faces, and a cut at the wrong end or with the wrong width.
void expecttiled(const std::vector<face>& faces, const std::string& cut) {
    const double from = cut == "left" || cut == "both" ? 16 : 0, to = cut == "righ" || cut == "both" ? 192 : 208;
    EXPECT_EQ(boundsfrom(planoriginx, planoriginy), (box{from, 0, 0, to, 0, 128}));
    int wrong = 0;  // points, none of them on an edge
    for (double x = from + 0.4; x < to; ++x)
        for (double z = 0.3; z < 128; ++z)
            wrong += 1 != std::count_if(faces.begin(), faces.end(), [=](const face& f) { return within(f, x, z); });
    EXPECT_EQ(wrong, 0);
}

}  // namespace

// A placement moves only points 1 to 100, and a corner that ends no line is not projected.
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
        readunmoved(name);
        EXPECT_LE(ptcount1, 100);
        int lines = 0;
        for (int g = 1; g <= linegroups; g++) lines += toint(linecount[g]);
        std::set<int> ends;
        for (int n = 1; n <= lines; n++) ends.insert({toint(lineend1[n]), toint(lineend2[n])});
        EXPECT_LE(*ends.rbegin(), ptcount1);
        std::vector<face> faces;
        for (int n = 1; n <= clearedpoints; n++) {
            if (quad1[n] == 0 && quad2[n] == 0) continue;
            faces.push_back({point(quad1[n]), point(quad2[n]), point(quad4[n]), point(quad3[n])});
            for (const value& c : {quad1[n], quad2[n], quad3[n], quad4[n]}) EXPECT_TRUE(ends.contains(toint(c))) << n;
            EXPECT_LT(quadcolour[n], lastnamedcolour) << "face " << n;
        }
        EXPECT_LE(faces.size(), 100u);
        if (panel) expecttiled(faces, name.substr(name.size() - 8, 4));
    }
    EXPECT_EQ(elements, 35);
}

// Catches posts and beams that do not meet, walls beside the grid, a roof with a gap, and a position with another
// record than in tests/places.
TEST(data, elementsAreDrawnAndRecordedAtTheirPositions) {
    const std::map<std::string, box> expectedbounds{
        {"postx", {0, -16, 0, 16, 0, 128}},     {"beamx", {0, 0, 112, 16, 176, 128}},
        {"vbeamx", {0, -16, 112, 176, 0, 128}}, {"roofx", {0, 0, 128, 208, 208, 136}},
        {"pan0x", {0, 0, 0, 208, 0, 128}},      {"pan180x", {-208, 0, 0, 0, 0, 128}},
        {"pan90x", {0, 0, 0, 0, 208, 128}},     {"pan270x", {0, -208, 0, 0, 0, 128}}};
    session s;
    s.start();
    for (const char* button : {"wiresolidbtn", "postbeambtn", "roofbtn", "orange1btn"}) s.click(button);
    for (const buttonposition& p : allbuttonpositions()) {
        s.click(positionname(p));
        EXPECT_EQ(boundsfrom(p.x, p.y), expectedbounds.at(p.family->nameprefix)) << positionname(p);
    }
    for (const std::string file : {"girders1.txt", "panels1.txt", "roofs1.txt"})
        EXPECT_EQ(session::file("designs/" + file), session::file(TESSALY_SOURCE_DIR "/tests/places/" + file));
}

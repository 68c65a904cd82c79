// The shipped data, which people are told to edit: every element can be read, is whole and fits its place on the plan.
#include "building/layouts.h"
#include "data/elements.h"
#include "tests/session.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>

using namespace tessaly;

namespace {

// Model units: from post to post; the layouts' X and Y of the world's origin. The last palette entry that has a name.
constexpr int bay = 192, planx = 488, plany = 680, lastnamed = 105;

struct spot {
    double x, y, z;  // world units
};

// The program started in a folder of the shipped data: every element can be read, and the start groups have been.
struct shippedelement : testing::Test {
    void SetUp() override { s.start(); }

    static void read(const std::string& file, int mode = 3, double rx = 0, double rz = 0, double x = planx,
                     double y = plany) {
        datafile = file;
        placemode = mode;
        rotx = rx;
        rotz = rz;
        placex = x;
        placey = y;
        placez = 0;
        readelements();
    }

    static spot point(int n) { return {basex[n], basey[n], basez[n]}; }

    static int wholeof(const value& v) { return static_cast<int>(static_cast<double>(v)); }

    // The corners of quad n in the order around it.
    static std::array<int, 4> around(int n) {
        return {wholeof(quad1[n]), wholeof(quad2[n]), wholeof(quad4[n]), wholeof(quad3[n])};
    }

    // Least and greatest coordinates of the element's points, rounded to a hundredth, in layout units.
    static std::array<double, 6> extent() {
        std::array<double, 6> e{1e9, 1e9, 1e9, -1e9, -1e9, -1e9};
        for (int n = 1; n <= wholeof(ptcount1); n++) {
            const double at[] = {point(n).x + planx, point(n).y + plany, point(n).z};
            for (std::size_t i = 0; i < 3; i++) {
                e[i] = std::min(e[i], std::round(at[i] * 100) / 100);
                e[i + 3] = std::max(e[i + 3], std::round(at[i] * 100) / 100);
            }
        }
        return e;
    }

    session s;
};

std::vector<std::string> elements() {
    std::vector<std::string> names{"st-post.txt", "st-beam.txt", "st-roof.txt"};
    for (const auto& file : std::filesystem::directory_iterator("datah"))
        if (file.path().filename().string().starts_with("st-panels-")) names.push_back(file.path().filename());
    return names;
}

// The area common to two convex outlines in the plane, by cutting the first with the sides of the second.
using outline = std::vector<std::pair<double, double>>;

double area(const outline& o) {
    double sum = 0;
    for (std::size_t i = 0; i < o.size(); i++) {
        const auto &a = o[i], &b = o[(i + 1) % o.size()];
        sum += a.first * b.second - a.second * b.first;
    }
    return sum / 2;
}

double commonarea(outline a, outline b) {
    if (area(b) < 0) std::reverse(b.begin(), b.end());
    for (std::size_t i = 0; i < b.size(); i++) {
        const auto &p = b[i], &q = b[(i + 1) % b.size()];
        const auto side = [&](const auto& s) {
            return (q.first - p.first) * (s.second - p.second) - (q.second - p.second) * (s.first - p.first);
        };
        outline kept;
        for (std::size_t k = 0; k < a.size(); k++) {
            const auto &from = a[k], &to = a[(k + 1) % a.size()];
            const double f = side(from), t = side(to);
            if (f >= 0) kept.push_back(from);
            if ((f < 0) != (t < 0))
                kept.push_back({from.first + f / (f - t) * (to.first - from.first),
                                from.second + f / (f - t) * (to.second - from.second)});
        }
        a = kept;
    }
    return std::abs(area(a));
}

}  // namespace

// Placement moves points 1 to 100 only; a corner that ends no line has no place on the screen; an end row with corners
// would be painted.
TEST_F(shippedelement, keepsToTheRulesOfTheReader) {
    ASSERT_EQ(elements().size(), 35u);
    for (const std::string& name : elements()) {
        SCOPED_TRACE(name);
        read(name);
        EXPECT_LE(ptcount1, 100);
        std::set<int> ends;
        double lines = 0;
        for (int g = 1; g <= linegroups; g++) lines += linecount[g];
        for (int n = 1; n <= static_cast<int>(lines); n++) {
            ends.insert(wholeof(lineend1[n]));
            ends.insert(wholeof(lineend2[n]));
        }
        EXPECT_LE(*ends.rbegin(), ptcount1);
        int quads = 0;
        for (int n = 1; n <= clearedpoints; n++) {
            if (quad1[n] == 0 && quad2[n] == 0) continue;
            quads = n;
            for (const int corner : around(n)) EXPECT_TRUE(ends.contains(corner)) << "face " << n;
            EXPECT_LT(quadcolour[n], lastnamed);
        }
        EXPECT_LE(quads, 100);
    }
}

// Steel that does not meet, walls beside the grid, a roof that leaves a gap.
TEST_F(shippedelement, standsOnItsPlaceOfThePlan) {
    for (const position& p : allpositions()) {
        const family& f = *p.of;
        read(*f.datafile ? f.datafile : "st-panels-1or-full.txt", f.mode, f.rotx, f.rotz, p.x, p.y);
        const std::string word = f.word;
        const double x = p.x, y = p.y;
        const std::array<double, 6> expected =
            word == "postx"     ? std::array<double, 6>{x, y - 16, 0, x + 16, y, 128}
            : word == "beamx"   ? std::array<double, 6>{x, y, 112, x + 16, y + 176, 128}
            : word == "vbeamx"  ? std::array<double, 6>{x, y - 16, 112, x + 176, y, 128}
            : word == "pan0x"   ? std::array<double, 6>{x, y, 0, x + 208, y, 128}
            : word == "pan180x" ? std::array<double, 6>{x - 208, y, 0, x, y, 128}
            : word == "pan90x"  ? std::array<double, 6>{x, y, 0, x, y + 208, 128}
            : word == "pan270x" ? std::array<double, 6>{x, y - 208, 0, x, y, 128}
                                : std::array<double, 6>{x, y, 128, x + 208, y + 208, 136};
        EXPECT_EQ(extent(), expected) << positionname(p);
    }
}

// A hole in a wall, a face over another in one plane (which of them is seen would hang on the eye), a cut at the wrong
// end or of the wrong width.
TEST_F(shippedelement, panelsAreTiledWithoutGapOrOverlap) {
    for (const std::string& name : elements()) {
        if (!name.starts_with("st-panels-")) continue;
        SCOPED_TRACE(name);
        read(name);
        std::vector<outline> tiles;
        double covered = 0;
        for (int n = 1; quad1[n] != 0; n++) {
            outline o;
            for (const int corner : around(n)) o.push_back({point(corner).x, point(corner).z});
            for (const outline& other : tiles) EXPECT_LT(commonarea(o, other), 1e-6) << "face " << n;
            tiles.push_back(o);
            covered += std::abs(area(o));
        }
        const std::string cut = name.substr(name.size() - 8, 4);
        const double from = cut == "left" || cut == "both" ? 16 : 0, to = cut == "righ" || cut == "both" ? 192 : 208;
        EXPECT_NEAR(covered, (to - from) * 128, 1e-6);
        EXPECT_EQ(extent(), (std::array<double, 6>{planx + from, plany, 0, planx + to, plany, 128}));
    }
}

// A post, a beam or a roof that one can look into: an edge without a face on each side of it.
TEST_F(shippedelement, postBeamAndRoofAreClosed) {
    for (const char* name : {"st-post.txt", "st-beam.txt", "st-roof.txt"}) {
        read(name);
        std::map<std::pair<int, int>, int> faces;  // by the edge's ends
        for (int n = 1; quad1[n] != 0; n++)
            for (std::size_t i = 0; i < 4; i++) ++faces[std::minmax({around(n)[i], around(n)[(i + 1) % 4]})];
        EXPECT_EQ(faces.size(), 12u) << name;
        for (const auto& [edge, count] : faces)
            EXPECT_EQ(count, 2) << name << ": " << edge.first << ", " << edge.second;
    }
}

// A point above or below the plan's middle, where the focus stands: it would have no direction on the picture.
TEST_F(shippedelement, theOpeningSceneKeepsClearOfTheMiddle) {
    for (const char* name : {"st-land.txt", "st-axes.txt", "st-grid.txt"}) {
        read(name);
        EXPECT_GT(ptcount1, 0) << name;
        for (int n = 1; n <= ptcount1; n++) EXPECT_FALSE(point(n).x == 0 && point(n).y == 0) << name << ": " << n;
    }
}

// The grid's lines must run through the middles of the posts.
TEST_F(shippedelement, gridLiesUnderThePosts) {
    EXPECT_EQ(extent(), (std::array<double, 6>{0, 0, 0, 976, 1360, 0}));
    for (int n = 1; n <= linecount1; n++) {
        const spot a = point(wholeof(lineend1[n])), b = point(wholeof(lineend2[n]));
        EXPECT_TRUE(a.x == b.x ? std::fmod(a.x + planx - 8, bay) == 0 : std::fmod(a.y + plany - 8, bay) == 0) << n;
    }
}

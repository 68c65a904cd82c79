// The shipped data: the committed files are those that the makers make, and every element fits its place on the plan.
#include "building/layouts.h"
#include "data/elements.h"
#include "tests/session.h"
#include "tools/shipped.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace tessaly;

namespace {

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
    std::vector<std::string> names;
    for (const shippedfile& file : shippedfiles()) {
        const std::string name = file.path.substr(file.path.find('/') + 1);
        if (name == "st-post.txt" || name == "st-beam.txt" || name == "st-roof.txt" || name.starts_with("st-panels-"))
            names.push_back(name);
    }
    return names;
}

// Whether a point lies within the outline, which is convex and may run either way around.
using outline = std::array<std::pair<double, double>, 4>;
bool covers(const outline& o, double x, double z) {
    bool left = false, right = false;  // of a side that is no point, as in a face of three corners, neither
    for (std::size_t i = 0; i < 4; i++) {
        const auto &a = o[i], &b = o[(i + 1) % 4];
        const double turn = (b.first - a.first) * (z - a.second) - (b.second - a.second) * (x - a.first);
        left = left || turn > 0;
        right = right || turn < 0;
    }
    return left != right;
}

}  // namespace

// A maker was changed and not run, or a file was changed by hand.
TEST(shippeddata, committedFilesAreWhatTheMakersMake) {
    for (const shippedfile& file : shippedfiles())
        EXPECT_TRUE(session::file(TESSALY_SOURCE_DIR "/" + file.path) == file.bytes)
            << file.path << ": run makedata in the root";
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
        for (int n = 1; quad1[n] != 0; n++) {
            outline& o = tiles.emplace_back();
            for (std::size_t i = 0; i < 4; i++) o[i] = {point(around(n)[i]).x + planx, point(around(n)[i]).z};
        }
        const std::string cut = name.substr(name.size() - 8, 4);
        const double from = cut == "left" || cut == "both" ? 16 : 0, to = cut == "righ" || cut == "both" ? 192 : 208;
        int wrong = 0;
        for (double x = planx + from + 0.13; x < planx + to; x += 0.5)  // beside the sides of all tiles
            for (double z = 0.17; z < 128; z += 0.5)
                wrong += std::count_if(tiles.begin(), tiles.end(), [&](const auto& o) { return covers(o, x, z); }) != 1;
        EXPECT_EQ(wrong, 0);
        EXPECT_EQ(extent(), (std::array<double, 6>{planx + from, plany, 0, planx + to, plany, 128}));
    }
}

// Transformation scripts: every keyword against points worked out by hand, and scripts that go wrong.
#include "data/transforms.h"
#include "core/sine.h"
#include "data/turns.h"
#include "tests/session.h"

#include <array>

using namespace tessaly;

namespace {

using corner = std::array<double, 3>;
using points = std::map<int, corner>;

// Runs a script over these points; all other points are 0.
void run(const std::string& script, const points& before) {
    resetworld();
    for (const auto& [i, at] : before) {
        for (auto* t : {&ptx, &basex}) t->set(i, at[0]);
        for (auto* t : {&pty, &basey}) t->set(i, at[1]);
        for (auto* t : {&ptz, &basez}) t->set(i, at[2]);
    }
    session::write("script.txt", script);
    openinput(1, "script.txt", "script");
    runtransforms();
    EXPECT_EQ(failureof([] { channelinput(1); }), std::nullopt);  // the caller closes it
    closechannel(1);
}

const points four{{1, {1, 2, 3}}, {2, {10, 20, 30}}, {11, {5, 0, 7}}, {21, {0, 4, 0}}};

}  // namespace

TEST(transforms, keywords) {
    const double truncated = 1e-4;  // what the pi of five decimals may shift these figures by
    struct {
        const char* script;
        points after;
    } const cases[] = {
        {"TRAN STOP\nTRAN\nSTOP\n", four},  // "TRAN STOP" is one field
        {"TRAN\nXTRANSFORMATIONS:\n1,9\n2,8\n9999,0\nTRAN\nSTOP\n", {{1, {9, 2, 3}}, {2, {8, 20, 30}}}},
        {"TRAN\nYTRANSFORMATIONS:\n1,9,9999,0\nTRAN\nZTRANSFORMATIONS:\n1,-9,9999,0\nTRAN\nSTOP\n", {{1, {1, 9, -9}}}},
        {"TRAN\nSIDEWAYS:\n1,9\n9999,0\nTRAN\nSTOP\n", {{1, {9, 2, 3}}}},  // no keyword: read as pairs of point and x
        {"TRAN\nRESIZE:\n1,2,2,0,-1\n9999,0,0,0,0\nTRAN\nSTOP\n",
         {{1, {2, 0, -3}}, {2, {20, 0, -30}}, {11, {5, 0, 7}}}},
        {"TRAN\nTRANSLATE:\n1,11,1,2,3\n9999,0,0,0,0\nTRAN\nSTOP\n",
         {{1, {2, 4, 6}}, {3, {1, 2, 3}}, {11, {6, 2, 10}}, {12, {0, 0, 0}}}},
        {"TRAN\nSTEP10TRANSLATE:\n1,20,1,2,3\n9999,0,0,0,0\nTRAN\nSTOP\n",
         {{1, {2, 4, 6}}, {2, {10, 20, 30}}, {11, {6, 2, 10}}, {21, {0, 4, 0}}}},
        // a quarter turn about X takes y to z, about Y z to x, about Z x to y; the translation follows
        {"TRAN\nXROTATETRANSLATE:\n1,1,90,100,200,300\n9999,0,0,0,0,0\nTRAN\nSTOP\n", {{1, {101, 197, 302}}}},
        {"TRAN\nYROTATETRANSLATE:\n1,1,90,100,200,300\n9999,0,0,0,0,0\nTRAN\nSTOP\n", {{1, {103, 202, 299}}}},
        {"TRAN\nZROTATETRANSLATE:\n1,1,90,100,200,300\n9999,0,0,0,0,0\nTRAN\nSTOP\n", {{1, {98, 201, 303}}}},
        // passes 1, 2, 3 turn points 1, 11, 21 by 90, 180, 270 degrees and raise them by (2 + k) k 10
        {"TRAN\nZWRAP:\n1,1,90,3,2,10\n9999,0,0,0,0,0\nTRAN\nSTOP\n",
         {{1, {-2, 1, 33}}, {11, {-5, 0, 87}}, {21, {4, 0, 150}}, {2, {10, 20, 30}}}},
        {"TRAN\nXWRAP:\n1,1,90,2,0,1\n9999,0,0,0,0,0\nTRAN\nSTOP\n", {{1, {2, -3, 2}}, {11, {9, 0, -7}}}},
        {"TRAN\nYWRAP:\n1,1,90,2,0,1\n9999,0,0,0,0,0\nTRAN\nSTOP\n", {{1, {3, 3, -1}}, {11, {-5, 4, -7}}}},
        // blocks compose in file order, each on what the one before left; what stands between them is skipped
        {"TRAN\nTRANSLATE:\n1,1,1,0,0\n9999,0,0,0,0\nfree, text\nTRAN\nRESIZE:\n1,1,3,1,1\n9999,0,0,0,0\nTRAN\nSTOP\nx",
         {{1, {6, 2, 3}}}},
        // a first above its last does nothing, wherever they point and however often it is to be done
        {"TRAN\nTRANSLATE:\n20000,3,1,1,1\n3000000,2000000,1,1,1\n1.2,1.1,1,1,1\n9999,0,0,0,0\nTRAN\nZWRAP:\n"
         "5,1,0,1e18,0,0\n9999,0,0,0,0,0\nTRAN\nSTOP\n",
         four},
        // an end row one field short takes the next TRAN with it: the block behind is missed
        {"TRAN\nTRANSLATE:\n9999,0,0,0\nTRAN\nRESIZE:\n1,1,9,9,9\n9999,0,0,0,0\nTRAN\nSTOP\n", four},
        // a keyword TRAN is read as pairs up to its end row, and the keyword of the next block follows at once
        {"TRAN\nTRAN\n1,7\n9999,0\nTRANSLATE:\n1,1,1,1,1\n9999,0,0,0,0\nTRAN\nSTOP\n", {{1, {8, 3, 4}}}},
    };
    for (const auto& c : cases) {
        session s;
        run(c.script, four);
        for (const auto& [i, at] : c.after) {
            EXPECT_NEAR(basex[i], at[0], truncated) << c.script << i;
            EXPECT_NEAR(basey[i], at[1], truncated) << c.script << i;
            EXPECT_NEAR(basez[i], at[2], truncated) << c.script << i;
            EXPECT_TRUE(ptx[i] == basex[i] && pty[i] == basey[i] && ptz[i] == basez[i]) << c.script << i;
        }
    }
}

TEST(transforms, leaveAnglesAndOffsetsBehind) {
    session s;
    rotz = rotx = 5;
    run("TRAN\nZROTATETRANSLATE:\n1,1,180,1,2,3\n9999,0,0,0,0,0\nTRAN\nYROTATETRANSLATE:\n1,1,90,4,5,6\n"
        "9999,0,0,0,0,0\nTRAN\nXWRAP:\n1,1,90,0,0,0\n9999,0,0,0,0,0\nTRAN\nSTOP\n",
        four);
    EXPECT_EQ(rotz, 180 * 3.14159 / 180);
    EXPECT_EQ(rotx, 0);  // a wrap of no copies has reset its running angle
    EXPECT_TRUE(placex == 4 && placey == 5 && placez == 6);
}

TEST(transforms, mistakesOfAScript) {
    struct {
        const char* script;
        failurekind kind;
        const char* told;
    } const cases[] = {
        {"STOP\n", failurekind::inputpastend, "looking for TRAN"},
        {"TRAN\nTRANSLATE:\n9999,0,0,0,0\n", failurekind::inputpastend, "looking for TRAN"},
        {"TRAN\nTRANSLATE:\n9999,0,0,0,0\nTRAN\n", failurekind::inputpastend, "keyword"},
        {"TRAN\nTRANSLATE:\n1,10001,0,0,0\n9999,0,0,0,0\n", failurekind::subscript, "script.txt, line 3, field 1"},
        {"TRAN\nZWRAP:\n1,1,0,1001,0,0\n9999,0,0,0,0,0\n", failurekind::subscript, "10001"},
        {"TRAN\nSTEP10TRANSLATE:\n5,1e9,0,0,0\n9999,0,0,0,0\n", failurekind::subscript, "points 5.."},
        {"TRAN\nXTRANSFORMATIONS:\n-1,0\n9999,0\n", failurekind::subscript, "line 3"},
        {"TRAN\nRESIZE:\n1,1,1,1,one\n9999,0,0,0,0\n", failurekind::typemismatch, "line 3, field 5"},
        {"TRAN\nZWRAP:\n1,1,x,1,0,0\n9999,0,0,0,0,0\n", failurekind::typemismatch, "\"x\""},
    };
    for (const auto& c : cases) {
        session s;
        expectfailure(failureof([&] { run(c.script, four); }), c.kind, c.told);
    }
}

// Degrees at which libraries and processors round differently, and the usual ones; worked out with 120 figures.
TEST(sine, isRoundedToTheNearest) {
    constexpr double rows[][3] = {
        // degrees, cosine, sine
        {0, 1, 0},
        {90, 0x1.6428a6aa4625bp-20, 0x1.fffffffffe108p-1},
        {180, -0x1.fffffffff8420p-1, 0x1.6428a6aa44cd0p-19},
        {270, -0x1.0b1e7d0031eafp-18, -0x1.ffffffffee947p-1},
        {-33.25, 0x1.ac2dbbf790497p-1, -0x1.18b9d6218e1e7p-1},
        {11.5, 0x1.f5b8b2001db22p-1, 0x1.984e20e54f80dp-3},
        {205.75, -0x1.cd287e0a57ff4p-1, -0x1.bcde805a685b3p-2},
        {629.75, -0x1.1e8ff04167ac4p-8, -0x1.fffebf39adc37p-1},
        {5e10, -0x1.c8fa0d414404cp-1, -0x1.cdce61abe32e5p-2},
    };
    for (const auto& [degrees, cosine, sine] : rows) {
        EXPECT_EQ(cosineof(radians(degrees)), cosine) << degrees;
        EXPECT_EQ(sineof(radians(degrees)), sine) << degrees;
    }
}

// Transformation scripts: every keyword against points worked out by hand; and the sine that they turn by.
#include "data/script.h"
#include "core/sine.h"
#include "data/pointtransforms.h"
#include "tests/geometry.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

using points = std::map<int, vec>;
const points four{{1, {1, 2, 3}}, {2, {10, 20, 30}}, {11, {5, 0, 7}}, {21, {0, 4, 0}}};

std::string block(const std::string& keyword, const std::string& rows) {
    return "TRAN\n" + keyword + "\n" + rows + "\n9999,0,0,0,0,0\n";
}

// Runs a script over the four points; all other points are 0.
void run(const std::string& script) {
    resetworld();
    for (const auto& [i, at] : four) placepoint(i, at[0], at[1], at[2]);
    session::write("script.txt", script + "TRAN\nSTOP\nx");
    openinput(1, "script.txt", "script");
    runtransforms();
    channelinput(1).close();  // by the caller
}

}  // namespace

TEST(script, keywords) {
    const double truncated = 1e-4;  // what the pi of five decimals may shift these figures by
    struct {
        std::string script;
        points after;
    } const cases[] = {
        {"TRAN STOP\n", four},  // it is one field
        {block("XTRANSFORMATIONS:", "1,9\n2,8"), {{1, {9, 2, 3}}, {2, {8, 20, 30}}}},
        {"TRAN\nYTRANSFORMATIONS:\n1,9,9999,0\nTRAN\nZTRANSFORMATIONS:\n1,-9,9999,0\n", {{1, {1, 9, -9}}}},
        {block("SIDEWAYS:", "1,9"), {{1, {9, 2, 3}}}},  // no keyword: read as pairs of point and x
        {block("RESIZE:", "1,2,2,0,-1"), {{1, {2, 0, -3}}, {2, {20, 0, -30}}, {11, {5, 0, 7}}}},
        {block("TRANSLATE:", "1,11,1,2,3"), {{1, {2, 4, 6}}, {3, {1, 2, 3}}, {11, {6, 2, 10}}, {12, {0, 0, 0}}}},
        {block("STEP10TRANSLATE:", "1,20,1,2,3"),
         {{1, {2, 4, 6}}, {2, {10, 20, 30}}, {11, {6, 2, 10}}, {21, {0, 4, 0}}}},
        // a quarter turn about X takes y to z, about Y z to x, about Z x to y; the translation follows
        {block("XROTATETRANSLATE:", "1,1,90,100,200,300"), {{1, {101, 197, 302}}}},
        {block("YROTATETRANSLATE:", "1,1,90,100,200,300"), {{1, {103, 202, 299}}}},
        {block("ZROTATETRANSLATE:", "1,1,90,100,200,300"), {{1, {98, 201, 303}}}},
        // passes 1, 2, 3 turn points 1, 11, 21 by 90, 180, 270 degrees and raise them by (2 + k) k 10
        {block("ZWRAP:", "1,1,90,3,2,10"), {{1, {-2, 1, 33}}, {11, {-5, 0, 87}}, {21, {4, 0, 150}}, {2, {10, 20, 30}}}},
        {block("XWRAP:", "1,1,90,2,0,1"), {{1, {2, -3, 2}}, {11, {9, 0, -7}}}},
        {block("YWRAP:", "1,1,90,2,0,1"), {{1, {3, 3, -1}}, {11, {-5, 4, -7}}}},
        // blocks compose in file order, each on what the one before left; what stands between them is skipped
        {block("TRANSLATE:", "1,1,1,0,0") + "free, text\n" + block("RESIZE:", "1,1,3,1,1"), {{1, {6, 2, 3}}}},
        // a first above its last does nothing, wherever they point and however often it is to be done
        {block("TRANSLATE:", "20000,3,1,1,1\n3000000,2000000,1,1,1\n1.2,1.1,1,1,1"), four},
        {block("ZWRAP:", "5,1,0,1e18,0,0"), four},
        // an end row one field short takes the next TRAN with it: the block behind is missed
        {"TRAN\nTRANSLATE:\n9999,0,0,0\n" + block("RESIZE:", "1,1,9,9,9"), four},
        // a keyword TRAN is read as pairs up to its end row, and the keyword of the next block follows at once
        {"TRAN\nTRAN\n1,7\n9999,0\nTRANSLATE:\n1,1,1,1,1\n9999,0,0,0,0\n", {{1, {8, 3, 4}}}},
    };
    session s(ownfolder);
    for (const auto& c : cases) {
        run(c.script);
        for (const auto& [i, at] : c.after) {
            EXPECT_LT(length(vec{basex[i], basey[i], basez[i]} - at), truncated) << c.script << i;
            EXPECT_EQ(joined(ptx[i], pty[i], ptz[i]), joined(basex[i], basey[i], basez[i])) << c.script << i;
        }
    }
}

TEST(script, leaveAnglesAndOffsetsBehind) {
    session s(ownfolder);
    rotz = rotx = 5;
    run(block("ZROTATETRANSLATE:", "1,1,180,1,2,3") + block("YROTATETRANSLATE:", "1,1,90,4,5,6") +
        block("XWRAP:", "1,1,90,0,0,0"));
    EXPECT_EQ(rotz, 180 * 3.14159 / 180);
    EXPECT_EQ(rotx, 0);  // a wrap of no copies has reset its running angle
    run(block("ZWRAP:", "2,1,180,2000,0,0") + block("XWRAP:", "2,1,180,1e300,0,0"));  // no points, but the angles
    EXPECT_NEAR(rotz, 2000 * 3.14159, 1e-6);
    EXPECT_EQ(rotx, 180 * 3.14159 / 180 * 1e300);
    EXPECT_EQ(joined(placex, placey, placez), "4 5 6");
}

// Degrees at which libraries and processors round differently, and the usual ones; worked out with 120 figures.
TEST(script, isRoundedToTheNearest) {
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

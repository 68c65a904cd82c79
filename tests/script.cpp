// The angles and offsets that transformation scripts leave, and their sine. The session "scripts" plays every keyword.
#include "data/script.h"
#include "core/sine.h"
#include "data/pointtransforms.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

void run(const std::string& blocks) {
    session::write("script.txt", blocks + "TRAN\nSTOP\nx");
    openinput(1, "script.txt", "script");
    runtransforms();
    resetchannels();
}

}  // namespace

TEST(script, leavesAnglesAndOffsetsBehind) {
    const std::string end = "\n9999,0,0,0,0,0\n";
    session s(ownfolder);
    rotz = rotx = 5;
    run("TRAN\nZROTATETRANSLATE:\n1,1,180,1,2,3" + end + "TRAN\nYROTATETRANSLATE:\n1,1,90,4,5,6" + end +
        "TRAN\nXWRAP:\n1,1,90,0,0,0" + end);
    EXPECT_EQ(rotz, 180 * 3.14159 / 180);
    EXPECT_EQ(rotx, 0);  // a wrap that makes no copies still resets its running angle
    // No points, but the angles; the sums of 2000 and of 1e300 turns take no time.
    run("TRAN\nZWRAP:\n2,1,180,2000,0,0" + end + "TRAN\nXWRAP:\n2,1,180,1e300,0,0" + end);
    EXPECT_NEAR(rotz, 2000 * 3.14159, 1e-6);
    EXPECT_EQ(rotx, 180 * 3.14159 / 180 * 1e300);
    EXPECT_EQ(joined(placex, placey, placez), "4 5 6");
}

// Degrees at which libraries and processors round differently, and the usual ones; worked out with 120 digits.
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

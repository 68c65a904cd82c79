// The walk around the square: where it turns, what a limit costs, how it recovers and how it can be lost for good.
#include "tests/viewlines.h"

namespace tessaly {
namespace {

// Default view first: it uses up the fix-up that waits after the start, so that figures stay whole.
struct rotating : session {
    rotating() {
        start();
        click("defaultviewbtn");
        click("activateleftbtn");
    }
    void clicks(const std::string& name, int times) {
        for (int i = 0; i < times; ++i) click(name);
    }
};

TEST(rotation, activationStartsFromTheHeightInItsBox) {
    session s;
    s.start();
    s.click("activateleftbtn");
    // The fix-up of the start is still due and turns the zeros of the focus into 0.1.
    EXPECT_EQ(perptxtx.text + ' ' + perptxty.text + ' ' + perptxtz.text, "1850. -1849 1010");
    EXPECT_EQ(focustxtx.text + ' ' + focustxtz.text + ' ' + verttxt.text + ' ' + eperpzbox.text, "0.1 180 170 ");
    EXPECT_TRUE(rotleftbtn.shown && rotincbtn.shown && !rotrightbtn.shown && !activateleftbtn.shown);
    s.click("defaultviewbtn");  // before the first step: nothing is left that brings an arrow back
    for (const control* c : {&rotleftbtn, &rotrightbtn, &activateleftbtn, &activaterightbtn, &reactivateleftbtn})
        EXPECT_FALSE(c->shown) << c->name;
}

TEST(rotation, thirtySevenClicksTurnTheCorner) {
    rotating s;
    s.clicks("rotleftbtn", 36);
    EXPECT_EQ(perpx, -1750);
    EXPECT_EQ(perpy, -1850);
    s.takelines();
    s.click("rotleftbtn");  // the eye is not held to the limit, and the corner is turned in the same click
    EXPECT_EQ(wipes(s.takelines()), 2);
    EXPECT_EQ(rotstage, 2);
    EXPECT_EQ(perptxtx.text + ' ' + perptxty.text, "-1850 -1750");
    s.click("rotleftbtn");
    EXPECT_EQ(wipes(s.takelines()), 1);
    EXPECT_EQ(perprely, perpy);
    EXPECT_TRUE(activaterightbtn.shown);
    s.click("defaultviewbtn");
    EXPECT_EQ(rotstage, 1);
}

TEST(rotation, largeStepsLeaveTheSquareAndGoOnOutThere) {
    rotating s;
    s.pick("rotincbox", "500");
    s.clicks("rotleftbtn", 8);
    EXPECT_EQ(perpx, -2150);
    EXPECT_EQ(perpy, -1350);
    s.pick("rotincbox", " ");
    perpx = -1865.4322;  // limits are held against the figure in the box, the eye keeps all its digits
    s.click("rotleftbtn");
    EXPECT_EQ(perptxtx.text + ' ' + perptxty.text, "-1865 -1250");
    EXPECT_EQ(rotboxx, -1865);
    s.click("activaterightbtn");
    std::string sides;
    for (int i = 0; i < 140; ++i) {
        s.click("rotrightbtn");
        if (const std::string side = rotstage.text(); sides.empty() || sides.back() != side[0]) sides += side;
    }
    EXPECT_EQ(sides, "43214");
}

TEST(rotation, aSwitchOfDirectionGoesByTheSideSeenLast) {
    struct row {
        double x, y;
        int right, left;
    };
    rotating s;
    for (const row& r :
         {row{0, -1850, 3, 1}, row{1850, -1850, 2, 1}, row{1850, 0, 2, 4}, row{1850, 1850, 1, 4}, row{0, 1800, 1, 3},
          row{-1850, 1850, 4, 3}, row{-1800, 0, 4, 2}, row{-1850, -1850, 3, 2}, row{1799, -1799, 7, 7}}) {
        rotboxx = r.x;
        rotboxy = r.y;
        rotstage = 7;
        s.click("activaterightbtn");
        EXPECT_EQ(rotstage, r.right) << r.x << ' ' << r.y;
        rotstage = 7;
        s.click("reactivateleftbtn");
        EXPECT_EQ(rotstage, r.left) << r.x << ' ' << r.y;
    }
}

TEST(rotation, anEyePutElsewhereFindsItsWayBack) {
    rotating s;
    s.type("perptxtx", "-2000");
    s.click("cventerbtn");
    s.takelines();
    s.click("rotleftbtn");  // past the first side's limit already: only the second side's step is taken
    EXPECT_EQ(perptxtx.text + ' ' + perptxty.text, "-2000 -1750");
    s.click("defaultviewbtn");
    s.click("rotleftbtn");
    s.type("perptxtx", "500");
    s.type("perptxty", "500");
    s.click("cventerbtn");
    s.click("activaterightbtn");  // judged by the click before SET, when the eye stood on the first side
    EXPECT_EQ(rotstage, 3);
    rotstage = 1;
    s.clicks("rotleftbtn", 23);
    EXPECT_EQ(perptxtx.text + ' ' + perptxty.text, "-1801 600");  // SET had nudged the diagonal eye to 498.5
}

}  // namespace
}  // namespace tessaly

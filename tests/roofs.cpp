// Clicks on the roof layout.
#include "tests/session.h"

using namespace tessaly;

TEST(roofs, recordsOfTheCorners) {
    session s;
    s.start();
    s.click("roofbtn");
    EXPECT_TRUE(layoutroof.shown && panelprefix.empty());
    s.click("roofx0y0");
    s.type("floor", "10");
    s.click("roofx768y1152");
    EXPECT_EQ(session::file("designs/roofs1.txt"), "\"roof\",1,104,104,0,0,0,0,0,4,64\r\n");
    EXPECT_EQ(session::file("designs/roofs10.txt"), "\"roof\",35,872,1256,0,0,0,768,1152,4,64\r\n");
    EXPECT_TRUE(divisions == 1500 && placemode == 5 && placez == 1152);
}

// The finest web belongs to the kind of the last element: a girder after a roof is painted as usual.
TEST(roofs, theFineWebEndsWithTheRoof) {
    session s;
    s.start();
    s.click("roofx0y0");
    s.click("postx0y16");
    EXPECT_EQ(divisions, 200);
    s.click("door2btn");
    s.click("pan0x0y0");
    s.click("roofx0y0");
    EXPECT_EQ(divisions, 400);  // the last panel's code still counts
}

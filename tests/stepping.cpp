// Steps of focus, eye, magnification and shifts: what moves with what, which boxes follow, what the cuts lose.
#include "render/redraw.h"
#include "tests/viewlines.h"

namespace tessaly {
namespace {

struct stepped : session {
    stepped() {
        start();
        click("defaultviewbtn");
        click("defaultviewbtn");  // the first one's focus has the fix-up's 0.1 in it
        takelines();
    }
    std::vector<drawnline> plainpicture() {
        refready = 0;
        replot();
        return lastpicture(takelines());
    }
};

TEST(stepping, magnificationMovesItsFigureByTheStep) {
    stepped s;
    s.click("magplusbtn");
    EXPECT_EQ(magtxt.text, "0.057");
    EXPECT_DOUBLE_EQ(mag, 0.57);
    s.type("magtxt", "0.055");
    s.click("cventerbtn");
    s.pick("magincbox", ".03");
    for (int twice = 0; twice < 2; ++twice) s.click("magminusbtn");
    EXPECT_EQ(magtxt.text, "-0.004");  // -0.00499999999999999, cut and not rounded; the picture is a mirror image
}

TEST(stepping, aFocusStepLeavesTheEyeWhereItIs) {
    stepped s;
    s.click("vertfocusminusbtn");
    EXPECT_EQ(perptxtz.text + ' ' + focustxtz.text + ' ' + efocuszbox.text, "830 230 230");
    EXPECT_EQ(perpz, 600);
    auto lines = s.takelines();
    EXPECT_EQ(lines.front(), (drawnline{2, 2, 1450, 2, makecolour(backred, backgreen, backblue)}));
    EXPECT_EQ(savez[1], ptz[1]);  // a near-side walk starts from where the focus is now
    EXPECT_EQ(wipes(lines), 1);   // default view has settled the points already
    EXPECT_EQ(lastpicture(lines), s.plainpicture());
    s.click("cventerbtn");
    s.takelines();
    s.click("vertfocusplusbtn");
    lines = s.takelines();
    EXPECT_EQ(wipes(lines), 2);
    EXPECT_NE(lastpicture(lines), s.plainpicture());  // the first step after a projection is drawn off by one step
    EXPECT_FALSE(easyviews.shown);
}

TEST(stepping, oneListServesFocusEyeAndShifts) {
    stepped s;
    s.click("vertperpminusbtn");
    EXPECT_EQ(perptxtz.text + ' ' + eperpzbox.text + ' ' + focustxtz.text, "730 730 280");
    s.click("incrementbtn");
    EXPECT_TRUE(incrementlist.shown);
    s.pick("incrementlist", "5");
    EXPECT_FALSE(incrementlist.shown);
    for (const char* button : {"horizdec", "vertinc", "vertfocusplusbtn", "vertperpplusbtn"}) s.click(button);
    EXPECT_EQ(horiztxt.text + ' ' + verttxt.text + ' ' + focustxtz.text + ' ' + perptxtz.text, "-275 175 285 735");
    s.pick("incrementlist", ".01 ");  // the blank behind it is part of the item, not of the step
    s.click("vertinc");
    EXPECT_EQ(vertshift, 175.01);
    s.pick("incrementlist", " ");
    s.click("vertdec");  // 175.01 was shown as "175.0"
    EXPECT_EQ(vertshift, 125);
}

TEST(stepping, aShiftKeepsFiveCharactersOfItself) {
    stepped s;
    horizshift = -270.25;
    s.click("horizinc");
    EXPECT_EQ(horizshift, -220);
    vertshift = 1.25e-7;
    s.click("vertinc");  // "1.25E"
    EXPECT_EQ(vertshift, 51.25);
    vertshift = "12345x";  // cut before it is a number
    s.click("vertinc");
    EXPECT_EQ(vertshift, 12395);
    vertshift = value("12a", "text box verttxt");
    EXPECT_EQ(failureof([&] { s.click("vertdec"); })->kind, failurekind::typemismatch);
}

}  // namespace
}  // namespace tessaly

// SET: text stays text until arithmetic meets it, sight lines are nudged in their order, boxes come back cut.
#include "core/viewfigures.h"
#include "tests/viewlines.h"

namespace tessaly {
namespace {

struct typing : session {
    typing() { start(); }
    void set(const std::vector<std::string>& texts) {
        for (std::size_t i = 0; i < texts.size(); ++i) type(viewfigures[i].box.name, texts[i]);
        click("cventerbtn");
    }
    static std::string boxes() {
        std::string all;
        for (const viewfigure& f : viewfigures) all += f.box.text + ' ';
        return all;
    }
};

TEST(set, degenerateSightLinesAreNudged) {
    typing s;
    s.set({"0", "0", "0", "0", "0", "0"});
    EXPECT_EQ(perprelx, 0.1 * 0.997 - 0.1);
    EXPECT_EQ(perprely, 0.1 * 0.999 - 0.1);
    EXPECT_EQ(perprelz, 0);
    EXPECT_EQ(focustxtx.text + ' ' + efocuszbox.text, "0.1 0.1");
    s.set({"100", "100", "100", "100", "100", "100"});
    EXPECT_EQ(perprelx, 100 * 0.997 - 100);
    s.set({"100", "100", "100", "100.0", "100", "100"});  // another text: only the quotients see that X is the same
    EXPECT_EQ(perprelx, 100 * 0.998 - 100);
    EXPECT_EQ(perprely, 100 * 0.999 - 100);
    s.set({"1270", "1270", "830", "0", "0", "280"});  // a diagonal over the origin
    EXPECT_EQ(perptxtx.text + ' ' + eperpxbox.text, "1266. 1266.");
}

TEST(set, boxesComeBackCutAndCountFromThenOn) {
    typing s;
    s.set({"1234.5678", "-1850", "830", "0.25", "1e1", "280.", "0.1", "170", "-1270"});
    EXPECT_EQ(s.boxes(), "1234. -1850 830 0.25 10 280 0.1 170 -127 ");
    EXPECT_EQ(mag, 1);
    EXPECT_TRUE(horizshift.is("-1270"));
    s.click("hidpfm");
    s.takelines();
    s.click("cventerbtn");
    EXPECT_TRUE(horizshift.is("-127"));
    EXPECT_EQ(perprelx, 1234 - 0.25);
    const auto lines = s.takelines();
    EXPECT_EQ(lines.front(), (drawnline{1, 1, 1450, 1, makecolour(backred, backgreen, backblue)}));
    s.click("cventerbtn");
    EXPECT_EQ(lines, s.takelines());  // the placed points again, not points moved twice
}

TEST(set, aTextThatIsNoNumberEndsTheProgram) {
    for (const viewfigure& f : viewfigures)
        for (const char* text : {"12a", ""}) {
            typing s;
            s.type(f.box.name, text);
            const auto failed = failureof([&] { s.click("cventerbtn"); });
            ASSERT_TRUE(failed) << f.box.name;
            EXPECT_EQ(failed->report(), "type mismatch: the box \"" + std::string(f.tag ? f.tag : f.word) +
                                            "\": " + (*text ? "\"12a\"" : "nothing") + " where a number was expected");
        }
}

TEST(defaultview, standsAboveItsFocusAndSetTakesItAsItIs) {
    typing s;
    s.click("defaultviewbtn");  // the fix-up that waits after the start
    EXPECT_EQ(s.boxes(), "1850. -1849 830 0.1 0.1 280 0.056 170 -270 ");
    s.click("defaultviewbtn");
    EXPECT_EQ(s.boxes(), "1850 -1850 830 0 0 280 0.056 170 -270 ");
    EXPECT_EQ(eperpxbox.text + ' ' + efocuszbox.text, "1850 280");
    const auto seen = lastpicture(s.takelines());
    focustxtx.text = focustxty.text = "1e-300";  // SET would take 0 for 0.1
    s.click("cventerbtn");
    EXPECT_EQ(seen, lastpicture(s.takelines()));
    s.click("defaultviewbtn");
    for (int again = 0; again < 2; ++again) {
        s.click("cventerbtn");
        EXPECT_EQ(s.boxes(), "1850 -1850 830 0.1 0.1 280 0.056 170 -270 ");
    }
}

TEST(manualview, sevenBoxesHideAndShow) {
    typing s;
    s.click("shopfm");
    EXPECT_TRUE(perptxtx.shown && magtxt.shown && hidpfm.shown && !shopfm.shown);
    s.click("hidpfm");
    EXPECT_TRUE(!perptxtx.shown && !magtxt.shown && !hidpfm.shown && shopfm.shown && verttxt.shown);
}

}  // namespace
}  // namespace tessaly

// The places of easyviews: figures into boxes, nothing else until SET.
#include "tests/session.h"

namespace tessaly {
namespace {

struct easy : session {
    easy() {
        start();
        click("fastchange");
    }
};

TEST(quickviews, placesWriteFiguresAndSetTakesThem) {
    easy s;
    EXPECT_EQ(eperpxbox.text + ' ' + efocuszbox.text, perptxtx.text + ' ' + focustxtz.text);
    s.takelines();
    const double before = perpx;
    for (const char* place : {"perpx0y1800", "perpz1600", "focusx192y384", "focusz100", "easysetbtn"}) s.click(place);
    EXPECT_EQ(perptxtx.text + ' ' + perptxty.text + ' ' + perptxtz.text, "0 1800 1600");
    EXPECT_EQ(focustxtx.text + ' ' + focustxty.text + ' ' + focustxtz.text, "384 192 100");  // swapped against its name
    EXPECT_EQ(perpx, before);  // neither view nor picture has moved
    EXPECT_TRUE(s.takelines().empty() && !easyviews.shown);
    s.click("cventerbtn");
    EXPECT_EQ(perprely, 1800 - 192);
    EXPECT_EQ(perptxtx.text + ' ' + eperpxbox.text, "0.100 0.100");  // 0.1 less 384 and back
    s.click("rotleftbtn");
    EXPECT_EQ(perptxtx.text + ' ' + eperpxbox.text, "-99.9 0.100");  // rotation leaves an older eye here
    s.click("vertperpplusbtn");
    EXPECT_EQ(eperpxbox.text + ' ' + eperpzbox.text, "0.100 1700");
}

TEST(quickviews, oneEyeButtonLetsTypedFocusThrough) {
    easy s;
    s.type("efocusxbox", "77");
    s.click("perpx0y1800");
    EXPECT_EQ(focustxtx.text, "0.1");
    s.click("perpx0ym1800");
    EXPECT_EQ(focustxtx.text, "77");
}

TEST(quickviews, everyPlaceButtonDoesWhatItSays) {
    easy s;
    const auto spelled = [](std::string figure) { return figure[0] == '-' ? 'm' + figure.substr(1) : figure; };
    for (const control* c : easyviews.controls) {
        if (c->kind != controlkind::button || c == &easysetbtn) continue;
        s.click(c->name);
        const bool eye = c->name.starts_with("perp"), height = c->name[eye ? 4 : 5] == 'z';
        const std::string x = (eye ? perptxtx : focustxtx).text, y = (eye ? perptxty : focustxty).text,
                          z = (eye ? perptxtz : focustxtz).text;
        const std::string place = height ? 'z' + z : 'x' + spelled(x) + 'y' + spelled(y);
        EXPECT_EQ(c->name, (eye ? "perp" : "focus") + (place == "x384y192" ? "x192y384" : place));
        EXPECT_EQ(c->spoken, (eye ? "Eye at " : "Focus at ") + (height ? "Z " + z : "X " + x + ", Y " + y));
    }
}

}  // namespace
}  // namespace tessaly

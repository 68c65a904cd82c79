// The keyboard in the real windows: where the focus goes, and what Return, Escape, Tab, the arrows and F keys do.

#include "core/viewvalues.h"
#include "core/world.h"
#include "tests/windowsession.h"

#include <QScreen>
#include <QScrollBar>

#include <set>

namespace tessaly {

// A control that hides itself hands the focus to the one that opened it, where the next key does no harm.
TEST_F(windowsession, theFocusGoesBackToWhatOpenedAControlThatHidesItself) {
    keys(R"(postbeambtn Return =layoutgirder Right Return
        floorbtn Return =floorlist Return =floorbtn
        incrementbtn Return =incrementlist Return =incrementbtn
        magincbtn Return =magincbox Return =magincbtn
        activateleftbtn Return =vistaplan rotincbtn Return =rotincbox Return =rotincbtn
        shopfm Return =vistaplan Tab =hidpfm Return =shopfm
        autowiresingle Return =autofile escapefilelistbtn Return =autowiresingle Return =autofile Return =autowiresingle
        autosolidsingle Return =autofile5 Return =autosolidsingle
        autowirebtn Return =autofile1 Return =autofile2 Return =autowirebtn
        autosolidbtn Return =autofile3 Return =autofile4 Return =autosolidbtn
        screencapbtn Return =capbox capescapebtn Return =screencapbtn
        retrieveimagetbtn Return =bmplistbox closebmpbtn Return =retrieveimagetbtn
        Return displayimagebtn Return =retrieveimagetbtn
        displayfilelistbtn Return =designfileslist closefilelistbtn Return =displayfilelistbtn
        Return =designfileslist Return killfilebtn Return =displayfilelistbtn
        rotleftbtn)");
    runevent([] { clickcontrol(defaultviewbtn); });  // which hides it, and so is what opened it
    keys("=vistaplan");
}

TEST_F(windowsession, escapeClosesWhatIsOpenAndNothingElse) {
    session::write("designs/girders1.txt", "");
    keys(R"(autosolidsingle Return =autofile5 Escape =autosolidsingle
        autowirebtn Return =autofile1 Escape =autowirebtn
        displayfilelistbtn Return =designfileslist Escape =displayfilelistbtn
        retrieveimagetbtn Return =bmplistbox capbox Return bmplistbox Escape =retrieveimagetbtn
        postbeambtn Return =layoutgirder Escape -layoutgirder
        orange1btn Return =layoutpanels Escape -layoutpanels
        roofbtn Return =layoutroof Escape -layoutroof
        fastchange Return =easyviews Escape -easyviews
        instructionsbtn Return =instructions Escape -instructions
        screencapbtn Return =capbox floorbtn Return =floorlist Down Escape =floorbtn)");
    EXPECT_TRUE(floorlist.shown);  // only a pick closes this list
    EXPECT_TRUE(capbox.shown);
    EXPECT_EQ(floor.text, "1");
    keys("capbox \"no.bmp\" Escape -capbox -screencapenter");
    EXPECT_TRUE(std::filesystem::is_empty("bmps"));
}

// Every place of a plan is reached by arrow keys, and the nearest in a direction first.
TEST_F(windowsession, arrowsWalkThePlans) {
    keys(R"(postbeambtn Return postx0y16 Right =beamx0y16 postx0y16 Down =vbeamx16y16
        beamx0y16 Down =beamx192y16
        orange1btn Return pan270x0y208 Down =pan90x16y0 pan0x0y192 Right =pan180x208y208
        roofbtn Return roofx0y0 Left =roofx0y0
        fastchange Return focusx0y0 Up =perpxm1800y0)");
    for (const window* plan : {&layoutgirder, &layoutpanels, &layoutroof, &easyviews}) {
        ASSERT_TRUE(frameof(*plan)) << plan->name;
        std::set<const QWidget*> reached;
        std::vector<QWidget*> ways{frameof(*plan)->plan()};
        while (!ways.empty()) {
            QWidget* const from = ways.back();
            ways.pop_back();
            for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
                from->setFocus();
                QTest::keyClick(from, key);
                if (reached.insert(frameof(*plan)->focusWidget()).second) ways.push_back(frameof(*plan)->focusWidget());
            }
        }
        for (const control* c : plan->controls)
            EXPECT_TRUE(c->kind != controlkind::button || reached.count(widgetof(*c))) << c->name;
    }
}

TEST_F(windowsession, aBuildingByTheKeyboardAlone) {
    keys(R"(postbeambtn Return =layoutgirder Right Return Down Down Return Escape
        orange1btn Space =layoutpanels panelsnipper Down pan270x0y208 Return Escape
        autosolidbtn Return =autofile3 Return =autofile4 Down Return =autosolidbtn
        shopfm Return perptxtx "1700" Tab =perptxty Tab =perptxtz Tab =focustxtx Tab =focustxty Tab =focustxtz
        Tab =magtxt Tab =verttxt Tab =horiztxt F5
        screencapbtn Return =capbox "keys.bmp" Return =screencapbtn
        vertperpplusbtn Return retrieveimagetbtn Return =bmplistbox Down Return displayimagebtn Return)");
    EXPECT_EQ(combinedcount, 3);
    EXPECT_EQ(perptxtx.text + " " + perptxtz.text, "1700 830");
    keys("fastchange Return perpx0y1800 Return F5 =perpx0y1800");
    EXPECT_EQ(perptxtx.text + " " + perptxty.text, "0.1 1800");
    keys("F1 =instructions");
    ASSERT_TRUE(frameof(instructions));
    const windowframe& help = *frameof(instructions);  // larger than the screen
    EXPECT_LE(help.height(), help.screen()->availableSize().height());
    EXPECT_GT(help.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(session::file("designs/girders1.txt"),
              "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n\"girder\",9,200,8,41,90,0,192,16,4,64\r\n");
    EXPECT_EQ(session::file("designs/panels1.txt"), "\"panel\",1,0,104,2,0,270,0,208,2,64\r\n");
}

}  // namespace tessaly

// The keyboard in the real windows: where the focus goes, and what Return, Escape, Tab, arrow keys and F5 do. The words
// that keys() plays are explained in tests/windowsession.h.

#include "core/viewvalues.h"
#include "core/world.h"
#include "tests/windowsession.h"

#include <QKeyEvent>

#include <set>

namespace tessaly {

using windows_keys = windowsession;

// If the next key went to some other control instead, it could click that.
TEST_F(windows_keys, aControlThatHidesItselfGivesTheFocusToItsOpener) {
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
    runevent([] { clickcontrol(defaultviewbtn); });  // hides the focused rotleftbtn, whose opener is already hidden
    keys("=vistaplan");
}

TEST_F(windows_keys, escapeClosesOnlyTheWindowOrListInUse) {
    keys(R"(autosolidsingle Return =autofile5 Escape =autosolidsingle
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

// Escape closes the list or dialog to which the focused control belongs, even if all others are open.
TEST_F(windows_keys, escapeClosesTheListOfTheFocusedControl) {
    session::write("designs/girders1.txt", "");
    session::write("bmps/house.bmp", "");
    const std::vector<std::vector<control*>> closedtogether{
        {&capescapebtn, &capbox, &screencapenter},
        {&escapefilelistbtn, &autofile, &autofile1, &autofile3, &autofile5},
        {&closefilelistbtn, &designfileslist, &killfilebtn},
        {&closebmpbtn, &bmplistbox, &displayimagebtn, &delbmpbtn},
    };
    for (const auto& these : closedtogether)
        for (const control* focused : these) {
            SCOPED_TRACE(focused->name);
            runevent([] {
                for (control* opener : {&screencapbtn, &autowiresingle, &autosolidsingle, &autowirebtn, &autosolidbtn,
                                        &displayfilelistbtn, &retrieveimagetbtn})
                    clickcontrol(*opener);
                for (control* list : {&designfileslist, &bmplistbox}) pickitem(*list, 0);
            });
            widgetof(*focused)->setFocus();
            QTest::keyClick(widgetof(*focused), Qt::Key_Escape);
            for (const auto& others : closedtogether)
                EXPECT_EQ(others.front()->shown && others.back()->shown, others != these) << others.front()->name;
        }
}

// An arrow key moves the focus to the nearest position button in its direction. The arrow keys reach every button.
TEST_F(windows_keys, arrowKeysReachEveryPosition) {
    keys(R"(postbeambtn Return postx0y16 Right =beamx0y16 postx0y16 Down =vbeamx16y16
        beamx0y16 Down =beamx192y16
        orange1btn Return pan270x0y208 Down =pan90x16y0 pan0x0y192 Right =pan180x208y208
        roofbtn Return roofx0y0 Left =roofx0y0
        fastchange Return focusx0y0 Up =perpxm1800y0)");
    for (const window* plan : {&layoutgirder, &layoutpanels, &layoutroof}) {
        frameof(*plan)->content()->setFocus();
        keys(std::string("=") + plan->name);
        std::set<QWidget*> reached;
        const std::function<void(QWidget*)> walkfrom = [&](QWidget* from) {
            if (!reached.insert(from).second) return;
            for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
                from->setFocus();
                QTest::keyClick(from, key);
                walkfrom(frameof(*plan)->focusWidget());
            }
        };
        walkfrom(frameof(*plan)->content());
        for (const control* c : plan->controls)
            EXPECT_TRUE(c->kind != controlkind::button || reached.contains(widgetof(*c))) << c->name;
    }
}

TEST_F(windows_keys, tabVisitsTheBoxesOfTheViewAndF5AppliesThem) {
    keys(R"(postbeambtn Return =layoutgirder Right Return Down Down Return Escape
        orange1btn Space =layoutpanels panelsnipper Down pan270x0y208 Return
        autosolidbtn Return =autofile3 Return =autofile4 Down Return =autosolidbtn
        shopfm Return perptxtx "1700" Tab =perptxty Tab =perptxtz Tab =focustxtx Tab =focustxty Tab =focustxtz
        Tab =magtxt Tab =verttxt Tab =horiztxt F5)");
    EXPECT_EQ(combinedcount, 3);
    EXPECT_EQ(perptxtx.text, "1700");
    keys("fastchange Return perpx0y1800 Return F5 =perpx0y1800");
    EXPECT_EQ(perptxtx.text + " " + perptxty.text, "0.1 1800");
}

// A held key clicks a button only once, unless it is a stepping button.
TEST_F(windows_keys, onlySteppingButtonsRepeatWhileAKeyIsHeld) {
    // p: a press, R: a press that Qt marks as a repeat, u: a release. On X11, a repeat is a release and a press with
    // the same time, which Qt may not mark.
    const auto hold = [](const control& c, Qt::Key key) {
        widgetof(c)->setFocus();
        quint64 time = 1000;  // ms
        for (const char step : std::string("pRupRupRupu")) {
            time += step == 'u' ? 40 : 0;
            QKeyEvent event(step == 'u' ? QEvent::KeyRelease : QEvent::KeyPress, key, Qt::NoModifier,
                            key == Qt::Key_Space ? " " : "", step == 'R');
            event.setTimestamp(time);
            QApplication::sendEvent(widgetof(c), &event);
        }
    };
    keys("postbeambtn Return =layoutgirder");
    const control& post = *findcontrol("postx0y16");
    hold(post, Qt::Key_Return);
    hold(post, Qt::Key_Space);
    QTest::mousePress(widgetof(post), Qt::LeftButton);
    QTest::qWait(700);  // longer than the delay of a repeating button
    QTest::mouseRelease(widgetof(post), Qt::LeftButton);
    EXPECT_EQ(post.tooltipsuffix, ", built 3 times in girders1.txt");
    hold(post, Qt::Key_Escape);
    keys("-layoutgirder =postbeambtn");
    hold(autosolidsingle, Qt::Key_Return);
    keys("=autofile5");
    hold(autofile5, Qt::Key_Return);
    keys("-autofile5");

    const double before = mag;
    hold(magplusbtn, Qt::Key_Return);
    EXPECT_NEAR(mag - before, 7 * 0.01, 1e-9);  // four presses and three marked repeats
    QTest::mousePress(widgetof(magminusbtn), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return mag < before; }));
    QTest::mouseRelease(widgetof(magminusbtn), Qt::LeftButton);
    hold(floor, Qt::Key_Space);
    EXPECT_GT(floor.text.size(), 4);
}

}  // namespace tessaly

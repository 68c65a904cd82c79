// The keyboard in the real windows: where the focus goes, and what Return, Escape, Tab, the arrows and F5 do.

#include "core/world.h"
#include "tests/windowsession.h"
#include "windows/handlers.h"

#include <QComboBox>
#include <QLineEdit>

#include <set>

namespace tessaly {

namespace {

class windowkeys : public windowsession {
  protected:
    void SetUp() override {
        windowsession::SetUp();
        std::ofstream("designs/girders1.txt") << "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";
        start();
    }

    // Return on each of these controls in turn; on a list it picks the first row.
    static void press(const std::string& names) {
        std::istringstream words(names);
        for (std::string name; words >> name;) {
            QWidget* const widget = widgetof(*findcontrol(name));
            ASSERT_TRUE(widget && widget->isVisible()) << name;
            widget->window()->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(widget->window()));
            widget->setFocus(Qt::TabFocusReason);
            QTest::keyClick(widget, Qt::Key_Return);
        }
    }

    // The name of what holds a window's focus, "plan" where no control does.
    static std::string focused(const window& w = vistaplan) {
        const control* const c = focusedcontrol(w);
        return c ? c->name : faceof(w)->focusWidget() == faceof(w)->plan() ? "plan" : "something else";
    }
};

}  // namespace

// A control that hides itself hands the focus to the one that opened it, where the next key does no harm.
TEST_F(windowkeys, theFocusGoesBackToWhatOpenedAControlThatHidesItself) {
    const struct {
        const char *pressed, *goesto;
    } rows[] = {
        {"floorbtn floorlist", "floorbtn"},
        {"incrementbtn incrementlist", "incrementbtn"},
        {"magincbtn magincbox", "magincbtn"},
        {"activateleftbtn", "plan"},
        {"rotincbtn rotincbox", "rotincbtn"},
        {"shopfm", "plan"},
        {"hidpfm", "shopfm"},
        {"autowiresingle escapefilelistbtn", "autowiresingle"},
        {"autowiresingle autofile", "autowiresingle"},
        {"autosolidsingle autofile5", "autosolidsingle"},
        {"autowirebtn autofile1", "autofile2"},  // which opens
        {"autofile2", "autowirebtn"},
        {"autosolidbtn autofile3", "autofile4"},
        {"autofile4", "autosolidbtn"},
        {"screencapbtn capescapebtn", "screencapbtn"},
        {"retrieveimagetbtn closebmpbtn", "retrieveimagetbtn"},
        {"retrieveimagetbtn displayimagebtn", "retrieveimagetbtn"},
        {"displayfilelistbtn closefilelistbtn", "displayfilelistbtn"},
        {"displayfilelistbtn designfileslist killfilebtn", "displayfilelistbtn"},
    };
    for (const auto& row : rows) {
        press(row.pressed);
        const std::string last = std::string(row.pressed).substr(std::string(row.pressed).rfind(' ') + 1);
        EXPECT_FALSE(findcontrol(last)->shown) << last;
        EXPECT_EQ(focused(), row.goesto) << row.pressed;
    }
    press("rotleftbtn");  // hidden by another one's event
    widgetof(rotleftbtn)->setFocus();
    runevent([] { clickcontrol(defaultviewbtn); });
    EXPECT_EQ(focused(), "plan");
}

TEST_F(windowkeys, returnAndEscapeInTheCaptureBoxAreItsButtons) {
    press("screencapbtn");
    EXPECT_EQ(focused(), "capbox");
    QTest::keyClicks(widgetof(capbox), "no.bmp");
    QTest::keyClick(widgetof(capbox), Qt::Key_Escape);
    EXPECT_FALSE(capbox.shown || std::filesystem::exists("bmps/no.txt"));
    press("screencapbtn");
    QTest::keyClicks(widgetof(capbox), "view.bmp");
    QTest::keyClick(widgetof(capbox), Qt::Key_Return);
    EXPECT_TRUE(std::filesystem::exists("bmps/view.bmp"));
    EXPECT_EQ(focused(), "screencapbtn");
    press("retrieveimagetbtn capbox");  // a box that nothing reads
    EXPECT_TRUE(bmplistbox.shown);
}

TEST_F(windowkeys, escapeClosesWhatIsOpen) {
    const struct {
        const char *opener, *opened, *goesto;
    } lists[] = {
        {"autosolidsingle", "autofile5", "autosolidsingle"},
        {"autowirebtn", "autofile1", "autowirebtn"},
        {"displayfilelistbtn", "designfileslist", "displayfilelistbtn"},
        {"retrieveimagetbtn", "bmplistbox", "retrieveimagetbtn"},
    };
    for (const auto& row : lists) {
        press(row.opener);
        EXPECT_EQ(focused(), row.opened);
        QTest::keyClick(widgetof(*findcontrol(row.opened)), Qt::Key_Escape);
        EXPECT_FALSE(findcontrol(row.opened)->shown) << row.opened;
        EXPECT_EQ(focused(), row.goesto);
    }
    press("screencapbtn floorbtn");
    QTest::keyClick(widgetof(floorlist), Qt::Key_Down);
    QTest::keyClick(widgetof(floorlist), Qt::Key_Escape);  // only a pick closes this one
    EXPECT_TRUE(floorlist.shown && capbox.shown);
    EXPECT_EQ(floor.text + focused(), "1floorbtn");
    const struct {
        const char* opener;
        const window& opened;
    } windows[] = {{"postbeambtn", layoutgirder},
                   {"orange1btn", layoutpanels},
                   {"roofbtn", layoutroof},
                   {"fastchange", easyviews},
                   {"instructionsbtn", instructions}};
    for (const auto& row : windows) {
        press(row.opener);
        ASSERT_TRUE(row.opened.shown);
        EXPECT_EQ(focused(row.opened), "plan");
        QTest::keyClick(faceof(row.opened)->plan(), Qt::Key_Escape);
        EXPECT_FALSE(row.opened.shown || faceof(row.opened)->isVisible()) << row.opener;
    }
}

// Every place of a plan is reached by arrow keys, and the nearest in a direction first.
TEST_F(windowkeys, arrowsWalkThePlans) {
    press("postbeambtn orange1btn roofbtn fastchange");
    const struct {
        const char* from;
        Qt::Key key;
        const char* to;
    } steps[] = {{"postx0y16", Qt::Key_Right, "beamx0y16"},       {"postx0y16", Qt::Key_Down, "vbeamx16y16"},
                 {"beamx0y16", Qt::Key_Down, "beamx192y16"},      {"pan270x0y208", Qt::Key_Down, "pan90x16y0"},
                 {"pan0x0y192", Qt::Key_Right, "pan180x208y208"}, {"roofx0y0", Qt::Key_Left, "roofx0y0"},
                 {"focusx0y0", Qt::Key_Up, "perpxm1800y0"}};
    for (const auto& step : steps) {
        const control& from = *findcontrol(step.from);
        widgetof(from)->setFocus();
        QTest::keyClick(widgetof(from), step.key);
        EXPECT_EQ(focused(*from.in), step.to) << step.from;
    }
    for (const window* plan : {&layoutgirder, &layoutpanels, &layoutroof, &easyviews}) {
        std::set<const QWidget*> reached;
        std::vector<QWidget*> ways{faceof(*plan)->plan()};
        while (!ways.empty()) {
            QWidget* const from = ways.back();
            ways.pop_back();
            for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
                from->setFocus();
                QTest::keyClick(from, key);
                if (reached.insert(faceof(*plan)->focusWidget()).second) ways.push_back(faceof(*plan)->focusWidget());
            }
        }
        for (const control* c : plan->controls)
            EXPECT_TRUE(c->kind != controlkind::button || reached.count(widgetof(*c))) << c->name;
    }
}

TEST_F(windowkeys, f5IsSetFromEveryWindow) {
    press("fastchange perpx0y1800");
    QTest::keyClick(widgetof(*findcontrol("perpx0y1800")), Qt::Key_F5);
    EXPECT_EQ(perptxtx.text + " " + perptxty.text, "0.1 1800");
    EXPECT_TRUE(easyviews.shown);
}

TEST_F(windowkeys, aBuildingByTheKeyboardAlone) {
    const window* has = &vistaplan;  // the keyboard, as the desktop gives it
    const auto at = [&](const window& w) {
        has = &w;
        faceof(w)->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(faceof(w)));
    };
    const auto keys = [&](std::initializer_list<Qt::Key> pressed) {
        for (const auto key : pressed) QTest::keyClick(faceof(*has)->focusWidget(), key);
    };
    const auto go = [&](const control& to) {  // by Tab
        for (int tabs = 0; tabs < 100 && focusedcontrol(*to.in) != &to; ++tabs) keys({Qt::Key_Tab});
        ASSERT_EQ(focused(*to.in), to.name);
    };
    at(vistaplan);
    go(postbeambtn);
    keys({Qt::Key_Return});
    at(layoutgirder);
    keys({Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape});
    at(vistaplan);
    go(orange1btn);
    keys({Qt::Key_Space});
    at(layoutpanels);
    go(panelsnipper);
    keys({Qt::Key_Down});
    go(*findcontrol("pan270x0y208"));
    keys({Qt::Key_Return, Qt::Key_Escape});
    at(vistaplan);
    go(autosolidbtn);
    keys({Qt::Key_Return, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(combinedcount, 3);
    go(shopfm);
    keys({Qt::Key_Return, Qt::Key_Tab});
    EXPECT_EQ(focused(), "hidpfm");  // from where the hidden button stood
    go(perptxtx);
    QTest::keyClicks(faceof(*has)->focusWidget(), "1700");
    keys({Qt::Key_F5});
    EXPECT_EQ(perpabsx, 1700);
    go(screencapbtn);
    keys({Qt::Key_Return});
    QTest::keyClicks(faceof(*has)->focusWidget(), "keys.bmp");
    keys({Qt::Key_Return});
    go(vertperpplusbtn);
    keys({Qt::Key_Return});
    EXPECT_EQ(perptxtz.text, "930");
    go(retrieveimagetbtn);
    keys({Qt::Key_Return, Qt::Key_Down, Qt::Key_Return});
    go(displayimagebtn);
    keys({Qt::Key_Return});
    EXPECT_EQ(perptxtx.text + " " + perptxtz.text, "1700 830");
    go(exitbtn);
    keys({Qt::Key_Return});
    EXPECT_TRUE(programended);
    EXPECT_EQ(file("designs/girders1.txt"),
              "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n\"girder\",9,200,8,41,90,0,192,16,4,64\r\n");
    EXPECT_EQ(file("designs/panels1.txt"), "\"panel\",1,0,104,2,0,270,0,208,2,64\r\n");
}

// The row that its list opens at is the one in force.
TEST_F(windowkeys, afterAUsedSnipTheFullPanelIsMarked) {
    press("orange1btn");
    auto* box = qobject_cast<QComboBox*>(widgetof(panelsnipper));
    for (int row = 1; row <= 3; ++row) QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(panelsnipper.text, "snip both sides");
    press("pan0x0y0");
    EXPECT_EQ(box->currentIndex(), 0);
    press("snipleftbtn");
    EXPECT_EQ(box->currentIndex(), 1);
}

}  // namespace tessaly

// Boxes and lists in the real windows: typing, the tint of numbers that are not in force, tooltips, the wheel, rows,
// and the files of captures.

#include "core/viewvalues.h"
#include "picturefiles/rasterview.h"
#include "tests/windowsession.h"
#include "windows/qt/canvas.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QWheelEvent>

#include <set>

namespace tessaly {

using windows_boxesandlists = windowsession;

namespace {

// The colour of a box beside its text.
std::string colourof(const control& box) {
    const QImage seen = widgetof(box)->grab().toImage();
    const QColor colour = seen.pixelColor(QPoint(widgetof(box)->width() - 4, 4) * seen.devicePixelRatio());
    return colour.saturation() < 10 ? "white" : colour.hue() < 30 ? "red" : colour.hue() < 60 ? "yellow" : "other";
}

void expecttinted(const std::set<const control*>& tinted) {
    for (const window* w : {&vistaplan, &easyviews})
        for (const control* c : w->controls)
            if (c->kind == controlkind::textbox && frameof(*w) && widgetof(*c)->focusPolicy() != Qt::NoFocus) {
                EXPECT_EQ(colourof(*c), tinted.contains(c) ? "yellow" : "white") << c->name << " " << c->text;
            }
}

// The widget in front at the middle of a control.
QWidget* frontat(const control& c) { return frameof(*c.parent)->content()->childAt(widgetof(c)->geometry().center()); }

void turnwheel(QWidget& over) {
    const QPointF middle = over.rect().center();
    QWheelEvent turn(middle, over.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(&over, &turn);
}

}  // namespace

TEST_F(windows_boxesandlists, typingAfterAClickReplacesTheNumberAndReturnSetsIt) {
    keys("=vistaplan shopfm Return");
    int number = 700;
    for (const viewvalue& v : viewvalues) {
        const std::string typed = &v.box == &magtxt ? "0.08" : std::to_string(++number);
        EXPECT_EQ(frontat(v.box), widgetof(v.box));  // not behind the picture
        const auto* const tag = widgetof(v.box)->findChild<QLabel*>();
        EXPECT_EQ(tag ? tag->text().toStdString() : "", v.tag ? v.tag : "");
        click(v.box);
        keys("=" + v.box.name + " \"" + typed + '"');
        EXPECT_EQ(v.box.text, typed) << v.box.name;
        expecttinted({&v.box});
        keys("Return =" + v.box.name);
        expecttinted({});
        keys("\"5\"");
        EXPECT_EQ(v.box.text, "5") << v.box.name;
        QTest::mouseDClick(widgetof(v.box), Qt::LeftButton);
        keys('"' + typed + "\" F5");
        EXPECT_EQ(v.box.text, typed) << v.box.name;
    }
    click(perptxtx);
    QTest::mouseClick(widgetof(perptxtx), Qt::LeftButton, {}, {3, 10});  // the second click sets the cursor
    keys("\"1\"");
    EXPECT_EQ(perptxtx.text, "1701");
}

// NOT-BUGS: A number has a yellow box
TEST_F(windows_boxesandlists, numbersOfQuickViewsAreTintedUntilTheyAreInForce) {
    click(fastchange);
    click(*findcontrol("perpz600"));
    expecttinted({&perptxtz, &eperpzbox});
    click(*findcontrol("perpx1800y0"));
    click(fastchange);  // copies numbers that are not in force
    expecttinted({&perptxtx, &perptxty, &perptxtz, &eperpxbox, &eperpybox, &eperpzbox});
    keys("=fastchange F5");
    expecttinted({});
    click(*findcontrol("perpz600"));
    click(vertperpplusbtn);  // writes the box
    expecttinted({});
}

// NOT-BUGS: A box is red
TEST_F(windows_boxesandlists, boxesWarnOfWhatClicksWouldNotDo) {
    const std::tuple<const control&, const char*, bool> rows[] = {
        {floor, "10", false},        {floor, "0", true},
        {floor, "11", true},         {floor, "1.5", true},
        {floor, "3x", false},        {floor, "", true},
        {wiresolid, "Solid", true},  {wiresolid, "wireframe", false},
        {writefilebox, "off", true}, {writefilebox, "ON", true},
        {writefilebox, "on", false},
    };
    for (const auto& [box, text, warns] : rows) {
        qobject_cast<QLineEdit*>(widgetof(box))->setText(text);
        EXPECT_EQ(colourof(box), warns ? "red" : "white") << box.name << " " << text;
        EXPECT_EQ(tooltipof(box) != box.tooltip, warns) << text;
    }
}

TEST_F(windows_boxesandlists, tooltipsSayByHowMuchStepsGo) {
    EXPECT_EQ(tooltipof(rotleftbtn), "Walk to the left around the building by 100");
    runevent([] { pickitem(incrementlist, 8); });
    EXPECT_EQ(tooltipof(horizdec), "Move the picture left by 0.01, picked in \"Increment\"");
    EXPECT_EQ(tooltipof(magplusbtn), "Magnify by 0.001");
    runevent([] { pickitem(incrementlist, 9); });
    EXPECT_EQ(tooltipof(vertfocusminusbtn), "Lower the point looked at by 50");
}

TEST_F(windows_boxesandlists, theWheelLeavesTheSnipAloneUnlessItHasTheFocus) {
    click(orange1btn);
    auto* const box = qobject_cast<QComboBox*>(widgetof(panelsnipper));
    turnwheel(*box);
    EXPECT_EQ(panelsnipper.text, "Full panel");
    EXPECT_EQ(focusedcontrol(layoutpanels), nullptr);
    keys("panelsnipper");
    turnwheel(*box);
    EXPECT_EQ(panelsnipper.text, "snip left side");
    for (const std::string& entry : panelsnipper.items)
        EXPECT_LE(box->fontMetrics().horizontalAdvance(entry.c_str()), box->lineEdit()->width()) << entry;
    box->showPopup();
    EXPECT_GE(box->view()->viewport()->width(), box->view()->sizeHintForColumn(0));
    box->hidePopup();
    QAccessibleInterface* const line = QAccessible::queryAccessibleInterface(box->lineEdit());
    EXPECT_EQ(line->text(QAccessible::Name).toStdString(), panelsnipper.accessiblename);
}

// Catches a first row that looks picked, and keys that do not reach the list then.
TEST_F(windows_boxesandlists, aListOpenedByTheMouseShowsNoRowUntilAKeyIsPressed) {
    keys("=vistaplan");
    click(floorbtn);
    auto* const rows = qobject_cast<QListWidget*>(widgetof(floorlist));
    EXPECT_EQ(rows->currentRow(), -1);
    const QImage plain = rows->viewport()->grab().toImage();
    keys("=floorlist Return =floorlist Down");
    EXPECT_NE(rows->viewport()->grab().toImage(), plain);  // the frame of the keyboard
    keys("Return -floorlist");
    EXPECT_EQ(tessaly::floor.text, "9");
    click(incrementbtn);
    click(magincbtn);
    EXPECT_TRUE(widgetof(magincbox)->isAncestorOf(frontat(magincbox)));  // not behind the other list
}

TEST_F(windows_boxesandlists, longNamesHaveATooltipAndTheRowUnderTheMouseIsLight) {
    session::write("designs/a-girders1-of-the-house-behind-the-mill.txt", "");
    session::write("designs/girders1.txt", "");
    click(displayfilelistbtn);
    const auto* rows = qobject_cast<QListWidget*>(widgetof(designfileslist));
    EXPECT_EQ(rows->item(0)->toolTip(), "a-girders1-of-the-house-behind-the-mill.txt");
    EXPECT_EQ(rows->item(1)->toolTip(), "");
    const QImage before = rows->viewport()->grab().toImage();
    QTest::mouseMove(rows->viewport(), rows->visualItemRect(rows->item(1)).center());
    EXPECT_NE(rows->viewport()->grab().toImage(), before);
}

// Catches a picture scaled by the density of the screen, and rows that are found by their names.
TEST_F(windows_boxesandlists, aPictureWhoseNameIsNotUtf8IsShownAgain) {
    keys("screencapbtn Return =capbox \"view.bmp\" Return -capbox");
    std::filesystem::rename("bmps/view.bmp", "bmps/\xE9.bmp");
    std::filesystem::rename("bmps/view.txt", "bmps/\xE9.txt");
    const QImage captured = viewof(viewportimage()).copy();
    click(magplusbtn);
    EXPECT_NE(viewof(viewportimage()), captured);
    keys("retrieveimagetbtn Return =bmplistbox Return displayimagebtn Return -bmplistbox");
    EXPECT_EQ(viewof(viewportimage()), captured);
}

}  // namespace tessaly

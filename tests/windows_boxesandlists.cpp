// Boxes and lists in the real windows: typing, the tint of numbers that are not in force, tooltips, the wheel, rows,
// and the files of captures.

#include "core/viewvalues.h"
#include "picturefiles/rasterview.h"
#include "tests/windowsession.h"
#include "windows/qt/canvas.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QWheelEvent>

#include <set>

namespace tessaly {

using windows_boxesandlists = windowsession;

namespace {

// The colour of a box beside its text.
std::string colourof(const control& box) {
    const QPixmap seen = widgetof(box)->grab();
    const int margin = qRound(4 * seen.devicePixelRatio());
    const QColor colour = seen.toImage().pixelColor(seen.width() - margin, margin);
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

// A row of a list in a state.
QImage paintedrow(const QListWidget& rows, QStyle::State state) {
    QImage image(60, 17, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem row;
    row.rect = image.rect();
    row.state = QStyle::State_Enabled | state;
    rows.itemDelegate()->paint(&painter, row, rows.model()->index(3, 0));
    return image;
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
    EXPECT_EQ(perpx + focusx, 701);
    EXPECT_EQ(horizshift, 708);
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
    click(magplusbtn);  // writes no other box
    expecttinted({&perptxtx, &perptxty, &perptxtz, &eperpxbox, &eperpybox, &eperpzbox});
    keys("=magplusbtn F5");
    expecttinted({});
    click(*findcontrol("perpz600"));
    click(vertperpplusbtn);  // writes the box
    expecttinted({});
}

// NOT-BUGS: A box is red
TEST_F(windows_boxesandlists, boxesWarnOfWhatClicksWouldNotDo) {
    const struct {
        const control& box;
        const char* text;
        bool warns;
    } rows[] = {
        {floor, "10", false},        {floor, "0", true},
        {floor, "11", true},         {floor, "1.5", true},
        {floor, "3x", false},        {floor, "", true},
        {wiresolid, "Solid", true},  {wiresolid, "wireframe", false},
        {writefilebox, "off", true}, {writefilebox, "ON", true},
        {writefilebox, "on", false},
    };
    for (const auto& row : rows) {
        qobject_cast<QLineEdit*>(widgetof(row.box))->setText(row.text);
        EXPECT_EQ(colourof(row.box), row.warns ? "red" : "white") << row.box.name << " " << row.text;
        EXPECT_EQ(widgetof(row.box)->toolTip().toStdString() != row.box.tooltip, row.warns) << row.text;
    }
}

TEST_F(windows_boxesandlists, tooltipsSayByHowMuchStepsGo) {
    const auto tip = [](const control& c) { return widgetof(c)->toolTip().toStdString(); };
    EXPECT_EQ(tip(vertperpplusbtn), "Raise the eye by 100");
    runevent([] { pickitem(incrementlist, 8); });
    EXPECT_EQ(tip(vertperpplusbtn), "Raise the eye by 0.01, picked in \"Increment\"");
    EXPECT_EQ(tip(horizdec), "Move the picture left by 0.01, picked in \"Increment\"");
    EXPECT_EQ(tip(magplusbtn), "Magnify by 0.001");
    EXPECT_EQ(widgetof(rotleftbtn)->accessibleDescription(), "Walk to the left around the building by 100");
    runevent([] { pickitem(incrementlist, 9); });
    EXPECT_EQ(tip(vertfocusminusbtn), "Lower the point looked at by 50");
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

TEST_F(windows_boxesandlists, longNamesInAListHaveATooltip) {
    const std::string longname = "girders1-of-the-house-behind-the-mill.txt";
    for (const std::string& name : {longname, std::string("girders1.txt")}) session::write("designs/" + name, "");
    click(autosolidsingle);
    const auto* rows = qobject_cast<QListWidget*>(widgetof(autofile5));
    for (const QListWidgetItem* row : {rows->item(0), rows->item(1)})
        EXPECT_EQ(row->toolTip(), row->text().size() > 20 ? row->text() : QString());
}

TEST_F(windows_boxesandlists, promptsAndHintsAreOnlyRead) {
    for (const control* c : {&selectgirderfile, &selectpanelfile, &selectedbox, &autohintbox}) {
        EXPECT_TRUE(widgetof(*c)->property("readOnly").toBool()) << c->name;
        EXPECT_EQ(widgetof(*c)->focusPolicy(), Qt::NoFocus) << c->name;
    }
}

// Catches a first row that looks picked, and keys that do not reach the list then.
TEST_F(windows_boxesandlists, aListOpenedByTheMouseShowsNoRowUntilAKeyIsPressed) {
    keys("=vistaplan");
    click(floorbtn);
    auto* const rows = qobject_cast<QListWidget*>(widgetof(floorlist));
    EXPECT_TRUE(rows->hasFocus());
    EXPECT_EQ(rows->currentRow(), -1);
    for (const auto state : {QStyle::State_MouseOver, QStyle::State_HasFocus})
        EXPECT_NE(paintedrow(*rows, state), paintedrow(*rows, QStyle::State_None)) << int{state};
    QTest::keyClick(rows, Qt::Key_Return);
    EXPECT_TRUE(floorlist.shown);
    QTest::keyClick(rows, Qt::Key_Down);
    QTest::keyClick(rows, Qt::Key_Return);
    EXPECT_EQ(tessaly::floor.text, "9");
    click(incrementbtn);
    click(magincbtn);
    EXPECT_TRUE(widgetof(magincbox)->isAncestorOf(frontat(magincbox)));  // not behind the other list
}

// Rows of the list: the picture, its record, and both under a name that is not valid UTF-8.
TEST_F(windows_boxesandlists, eitherFileBringsThePictureBack) {
    const auto surface = [] { return viewof(viewportimage()).copy(); };
    keys("screencapbtn Return =capbox \"view.bmp\" Return -capbox");
    const QImage captured = surface();
    EXPECT_EQ(QImage("bmps/view.bmp"), captured);  // the image's own pixels, whatever the density of the screen
    for (const std::string ending : {".bmp", ".txt"}) std::filesystem::copy("bmps/view" + ending, "bmps/\xE9" + ending);
    for (const std::string row : {"", "Down", "Down Down"}) {
        click(magplusbtn);
        EXPECT_NE(surface(), captured);
        keys("retrieveimagetbtn Return =bmplistbox " + row + " Return displayimagebtn Return -bmplistbox");
        EXPECT_EQ(surface(), captured) << row;
    }
}

}  // namespace tessaly

// Sessions in the real windows: what the mouse and the keyboard do reaches the state, and the state reaches the screen.

#include "core/failure.h"
#include "render/surface.h"
#include "tests/windowsession.h"
#include "windows/qt/canvas.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>

namespace tessaly {

namespace {

// Counts how often a widget was painted.
class paintcounter : public QObject {
  public:
    explicit paintcounter(QWidget* of) { of->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

std::string textof(const control& c) { return qobject_cast<QLineEdit*>(widgetof(c))->text().toStdString(); }

}  // namespace

TEST_F(windowsession, startBringsTheMainWindowWithTheScene) {
    EXPECT_EQ(faceof(vistaplan), nullptr);  // a window is made on first use
    start();
    EXPECT_FALSE(faceof(startform)->isVisible());
    ASSERT_TRUE(faceof(vistaplan)->isVisible());
    EXPECT_TRUE(faceof(vistaplan)->windowState() & Qt::WindowMaximized);
    EXPECT_EQ(textof(verttxt), verttxt.text);
    const QImage seen = widgetof(viewport)->grab().toImage();
    const auto scale = static_cast<int>(seen.devicePixelRatio());  // a pixel stays a pixel, however large the screen's
    ASSERT_EQ(seen.size(), QSize(viewportwidth, viewportheight) * scale);
    for (int y = 0; y < seen.height(); ++y)
        for (int x = 0; x < seen.width(); ++x) {
            const colour c = viewportimage().at(x / scale, y / scale);
            ASSERT_EQ(seen.pixelColor(x, y), screencolour(c)) << x << ", " << y;
        }
}

TEST_F(windowsession, clicksOnThePlanAreRecorded) {
    start();
    click(postbeambtn);
    ASSERT_TRUE(faceof(layoutgirder)->isVisible());
    click("postx0y16");
    type(floor, "3");
    click("vbeamx16y16");
    EXPECT_EQ(file("designs/girders1.txt"), "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n");
    EXPECT_EQ(file("designs/girders3.txt"), "\"girder\",91,104,8,43,0,270,16,16,1,64\r\n");
    faceof(layoutgirder)->close();
    EXPECT_FALSE(layoutgirder.shown);
    click(postbeambtn);
    EXPECT_TRUE(faceof(layoutgirder)->isVisible());
}

TEST_F(windowsession, aSnipIsPickedOrTypedAndHoldsForOnePanel) {
    start();
    click(orange1btn);
    click(snipleftbtn);
    auto* box = qobject_cast<QComboBox*>(widgetof(panelsnipper));
    EXPECT_EQ(box->currentText(), "snip left side");
    click("pan0x0y0");
    EXPECT_EQ(box->currentText(), "Full panel");
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(panelsnipper.text, "snip left side");
    click("pan0x0y0");
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), "Snip");  // no completion makes another word of it
    runevent([] {});
    EXPECT_EQ(panelsnipper.text, "Snip");
    const std::string record = "\"panel\",85,104,0,2,0,0,0,0,4,64\r\n";
    EXPECT_EQ(file("designs/panels1.txt"), record + record);
}

TEST_F(windowsession, listsArePickedByMouseAndKeyboard) {
    start();
    for (int round = 0; round < 2; ++round) {  // the second click finds its item selected already
        click(floorbtn);
        pick(floorlist, 3);
        EXPECT_FALSE(widgetof(floorlist)->isVisible());
        EXPECT_EQ(textof(floor), "6");
        type(floor, "2");
    }
    click(floorbtn);
    QWidget* rows = widgetof(floorlist);
    QTest::keyClick(rows, Qt::Key_Down);
    EXPECT_EQ(selectedtext(floorlist), "6");  // moving alone picks nothing
    QTest::keyClick(rows, Qt::Key_Return);
    EXPECT_EQ(textof(floor), "5");
}

TEST_F(windowsession, theBoxesAreWalkedByTabAndF1OpensTheHelp) {
    start();
    click(shopfm);
    type(perptxtx, "1700");
    for (const control* c : {&perptxty, &perptxtz, &focustxtx, &focustxty, &focustxtz, &magtxt, &verttxt, &horiztxt}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        auto* box = qobject_cast<QLineEdit*>(widgetof(*c));
        EXPECT_EQ(QApplication::focusWidget(), box) << c->name;
        EXPECT_EQ(box->selectedText(), box->text()) << c->name;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    ASSERT_TRUE(faceof(instructions));
    EXPECT_TRUE(faceof(instructions)->isVisible());
    const QSize screen = faceof(instructions)->screen()->availableSize();  // smaller than this window
    EXPECT_LE(faceof(instructions)->height(), screen.height());
    EXPECT_GT(faceof(instructions)->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(perptxtx.text, "1700");
}

TEST_F(windowsession, theProgressStripMovesWhileThePictureWaits) {
    start();
    QTest::qWait(20);
    paintcounter strip(widgetof(progressbar)), picture(widgetof(viewport));
    runevent([&] {
        show(progressbar);
        viewportsurface->line(1, 1, 50, 50, {255, 0, 0});
        progresssurface->line(1, 700, 17, 700, {250, 50, 50});
        progresssurface->flush();
        EXPECT_TRUE(widgetof(progressbar)->isVisible());
        EXPECT_EQ(strip.paints, 1);
        EXPECT_EQ(picture.paints, 0);
        hide(progressbar);
    });
    QTest::qWait(20);
    EXPECT_FALSE(widgetof(progressbar)->isVisible());
    EXPECT_EQ(picture.paints, 1);
}

TEST_F(windowsession, exitAndClosingTheMainWindowEndWithStatus0) {
    start();
    QTimer::singleShot(0, [] { click(exitbtn); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(faceof(vistaplan)->isVisible());
    openwindows(dresswindow);
    start();
    QTimer::singleShot(0, [] { faceof(vistaplan)->close(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(programended);
}

TEST_F(windowsession, aFailureIsShownAndEndsWithStatus1) {
    start();
    click(postbeambtn);
    std::filesystem::remove("datah/st-post.txt");
    QString shown;
    QTimer::singleShot(0, [] { click("postx0y16"); });
    QTimer::singleShot(200, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        shown = box->text();
        EXPECT_FALSE(box->windowIcon().isNull());
        runevent([] { ADD_FAILURE() << "an event behind the message"; });
        box->accept();
    });
    testing::internal::CaptureStderr();
    EXPECT_EQ(QApplication::exec(), 1);
    const std::string report = testing::internal::GetCapturedStderr();
    EXPECT_NE(report.find("failure file not found: "), std::string::npos) << report;
    EXPECT_TRUE(shown.contains("st-post.txt")) << shown.toStdString();
    EXPECT_EQ(file("designs/girders1.txt"), "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n");
}

}  // namespace tessaly

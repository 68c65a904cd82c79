// The start, the icon, the progress strip and the end of the program in the real windows.

#include "render/surface.h"
#include "tests/windowsession.h"
#include "windows/qt/canvas.h"

namespace tessaly {

using windows_startandend = windowsession;

namespace {

// Counts how often widgets are painted.
class paintcounter : public QObject {
  public:
    bool eventFilter(QObject* of, QEvent* event) override {
        paints[of] += event->type() == QEvent::Paint;
        return false;
    }
    std::map<QObject*, int> paints;
};

}  // namespace

// Catches an icon that only a plugin of the toolkit can draw: it has no sizes.
TEST_F(windows_startandend, theIconNeedsNoPlugin) {
    const QIcon icon = QApplication::windowIcon();
    EXPECT_TRUE(icon.availableSizes().contains(QSize(16, 16)) && icon.availableSizes().contains(QSize(256, 256)));
    const QImage drawn = icon.pixmap(QSize(48, 48), 1.0).toImage();
    EXPECT_EQ(drawn.pixelColor(24, 24).alpha(), 255);
}

// NOT-BUGS: Nothing seems to happen, then the whole solid picture appears
TEST_F(windows_startandend, theProgressStripMovesWhileThePictureWaits) {
    QTest::qWait(20);
    paintcounter counter;
    QWidget *const strip = widgetof(progressbar), *const picture = widgetof(viewport);
    for (QWidget* const counted : {strip, picture}) counted->installEventFilter(&counter);
    runevent([&] {
        show(progressbar);
        viewportsurface->line(1, 1, 50, 50, {255, 0, 0});
        progresssurface->line(1, 700, 17, 700, {250, 50, 50});
        progresssurface->flush();
        EXPECT_TRUE(strip->isVisible());
        EXPECT_EQ(counter.paints[strip], 1);
        EXPECT_EQ(counter.paints[picture], 0);
        hide(progressbar);
    });
    QTest::qWait(20);
    EXPECT_FALSE(strip->isVisible());
    EXPECT_EQ(counter.paints[picture], 1);
}

TEST_F(windows_startandend, endsWithStatus0WhereTheUserWishesAndWith1AfterAReport) {
    EXPECT_EQ(frameof(layoutgirder), nullptr);  // a window is made on first use
    EXPECT_TRUE(frameof(vistaplan)->windowState() & Qt::WindowMaximized);
    QTimer::singleShot(0, [] { click(exitbtn); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(frameof(vistaplan)->isVisible());
    start();
    QTimer::singleShot(0, [] { frameof(vistaplan)->close(); });
    EXPECT_EQ(QApplication::exec(), 0);
    start();
    click(postbeambtn);
    std::filesystem::remove("datah/st-post.txt");
    QTimer::singleShot(0, [] { click(*findcontrol("postx0y16")); });
    EXPECT_EQ(QApplication::exec(), 1);
    EXPECT_EQ(report.find("datah\\st-post.txt"), 0) << report;
    start();
    fillscreen.run = [] { throw std::runtime_error("an odd exception"); };
    QTimer::singleShot(0, [] { click(fillscreen); });
    EXPECT_EQ(QApplication::exec(), 1);
    EXPECT_EQ(report, "an odd exception");
}

}  // namespace tessaly

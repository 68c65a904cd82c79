// Captures in the real windows: the files that other programs open, and pictures that are not as they should be.

#include "core/failure.h"
#include "core/viewfigures.h"
#include "tests/windowsession.h"
#include "windows/qt/canvas.h"
#include "windows/qt/picturefiles/rasterview.h"

#include <QLineEdit>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace tessaly {

namespace {

class windowcaptures : public windowsession {
  protected:
    void SetUp() override {
        windowsession::SetUp();
        start();
    }
    static void capture(const char* name) {
        click(screencapbtn);
        faceof(vistaplan)->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(faceof(vistaplan)));
        ASSERT_EQ(QApplication::focusWidget(), widgetof(capbox));
        QTest::keyClicks(widgetof(capbox), name);
        click(screencapenter);
        ASSERT_FALSE(widgetof(capbox)->isVisible());
    }
    static void retrieve(const std::string& name) {
        click(retrieveimagetbtn);
        const auto found = std::find(bmplistbox.items.begin(), bmplistbox.items.end(), name);
        pick(bmplistbox, static_cast<int>(found - bmplistbox.items.begin()));
        click(displayimagebtn);
        ASSERT_FALSE(widgetof(bmplistbox)->isVisible());
    }
    static QStringList boxes() {
        QStringList texts;
        for (const viewfigure& f : viewfigures) texts << qobject_cast<QLineEdit*>(widgetof(f.box))->text();
        return texts;
    }
    static QImage surface() { return viewof(viewportimage()).copy(); }
};

}  // namespace

TEST_F(windowcaptures, eitherFileBringsPictureAndViewBack) {
    click(postbeambtn);
    click("postx192y16");
    for (int presses = 0; presses < 2; ++presses) click(defaultviewbtn);
    const QImage kept = surface();
    const QStringList view = boxes();
    capture("kept.bmp");
    EXPECT_EQ(QImage("bmps/kept.bmp"), kept);          // the image's own pixels, whatever the screen's density
    for (const std::string ending : {".bmp", ".txt"})  // under a name, too, that is no text to the toolkit
        std::filesystem::copy("bmps/kept" + ending, "bmps/\xE9" + ending);
    for (const char* either : {"kept.bmp", "kept.txt", "\xE9.bmp"}) {
        for (const control* c : {&vertperpplusbtn, &magplusbtn, &horizinc}) click(*c);
        EXPECT_NE(surface(), kept);
        retrieve(either);
        EXPECT_EQ(surface(), kept) << either;
        EXPECT_EQ(boxes(), view) << either;
    }
    click(vertperpplusbtn);
    EXPECT_EQ(boxes()[2], "930");
    EXPECT_NE(surface(), kept);
}

// Another size lies at the upper left as it is; a picture that is no whole picture leaves the view without one.
TEST_F(windowcaptures, otherPicturesAreSetAtTheUpperLeftAndBrokenOnesAreNot) {
    capture("kept.bmp");
    const std::string whole = file("bmps/kept.bmp");
    QImage small(40, 30, QImage::Format_RGB555);
    small.fill(Qt::red);
    ASSERT_TRUE(small.save("bmps/kept.bmp", "bmp"));
    retrieve("kept.txt");
    EXPECT_EQ(surface().pixelColor(39, 29), QColor(Qt::red));
    const QImage without = surface();
    EXPECT_NE(without.pixelColor(40, 29), QColor(Qt::red));

    for (const std::string& broken : {whole.substr(0, whole.size() / 2), std::string("no picture"), std::string()}) {
        std::ofstream("bmps/kept.bmp", std::ios::binary) << broken;
        retrieve("kept.txt");
        const QImage redrawn = surface();
        EXPECT_NE(redrawn.pixelColor(20, 20), QColor(Qt::red));
        EXPECT_EQ(redrawn.copy(40, 40, 800, 500), without.copy(40, 40, 800, 500)) << broken.size() << " bytes";
    }
    std::filesystem::remove("bmps/kept.bmp");
    ASSERT_EQ(::mkfifo("bmps/kept.bmp", 0666), 0);  // nobody will ever write to it
    retrieve("kept.bmp");
    EXPECT_EQ(surface().copy(40, 40, 800, 500), without.copy(40, 40, 800, 500));
}

// The picture that was there before stays whole where the new one cannot be written.
TEST_F(windowcaptures, aFailedCaptureKeepsTheOldPicture) {
    capture("kept.bmp");
    const std::string before = file("bmps/kept.bmp");
    savepicture(raster(3, 2), "bmps/small.bmp");
    const rlimit little{1000, RLIM_INFINITY};  // bytes of a file, as a full disk
    rlimit usual{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &usual), 0);
    ::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &little), 0);
    try {
        savepicture(viewportimage(), "bmps/kept.bmp");
        ADD_FAILURE() << "there was no room for it";
    } catch (const failure& f) {
        EXPECT_TRUE(f.detail.ends_with("File too large")) << f.detail;
    }
    ::setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_EQ(file("bmps/kept.bmp"), before);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator("bmps"), {}), 3);  // two pictures and a record
}

}  // namespace tessaly

// Captures in the real windows: the files that other programs open, and pictures that are not as they should be.

#include "picturefiles/rasterview.h"
#include "tests/windowsession.h"
#include "windows/qt/canvas.h"

#include <sys/stat.h>

namespace tessaly {

namespace {

class windowcaptures : public windowsession {
  protected:
    void SetUp() override {
        windowsession::SetUp();
        keys("screencapbtn Return =capbox \"kept.bmp\" Return -capbox");
        kept = surface();
    }
    // The picture of a row of the list, which these keys go to: kept.bmp, kept.txt and another's.
    void retrieve(const std::string& moves) {
        keys("retrieveimagetbtn Return =bmplistbox " + moves + " Return displayimagebtn Return -bmplistbox");
    }
    static QImage surface() { return viewof(viewportimage()).copy(); }

    QImage kept;
};

}  // namespace

TEST_F(windowcaptures, eitherFileBringsThePictureBack) {
    EXPECT_EQ(QImage("bmps/kept.bmp"), kept);          // the image's own pixels, whatever the screen's density
    for (const std::string ending : {".bmp", ".txt"})  // under a name, too, that is no text to the toolkit
        std::filesystem::copy("bmps/kept" + ending, "bmps/\xE9" + ending);
    for (const char* either : {"", "Down", "Down Down"}) {
        click(magplusbtn);
        EXPECT_NE(surface(), kept);
        retrieve(either);
        EXPECT_EQ(surface(), kept) << either;
    }
}

// Another size lies at the upper left as it is; a picture that is no whole picture leaves the view without one.
TEST_F(windowcaptures, otherPicturesAreSetAtTheUpperLeftAndBrokenOnesAreNot) {
    const std::string whole = session::file("bmps/kept.bmp");
    QImage small(40, 30, QImage::Format_RGB555);
    small.fill(Qt::red);
    ASSERT_TRUE(small.save("bmps/kept.bmp", "bmp"));
    retrieve("Down");
    const QImage set = surface(), beside = set.copy(40, 0, 800, 500);
    EXPECT_EQ(set.copy(0, 0, 40, 30), small.convertToFormat(set.format()));
    EXPECT_NE(set.pixelColor(40, 29), QColor(Qt::red));

    const auto expectnopicture = [&](std::size_t bytes) {
        retrieve("Down");
        EXPECT_NE(surface().pixelColor(20, 20), QColor(Qt::red)) << bytes;
        EXPECT_EQ(surface().copy(40, 0, 800, 500), beside) << bytes;
    };
    for (const std::string& broken : {whole.substr(0, whole.size() / 2), std::string("no picture"), std::string()}) {
        std::ofstream("bmps/kept.bmp", std::ios::binary) << broken;
        expectnopicture(broken.size());
    }
    std::filesystem::remove("bmps/kept.bmp");
    ASSERT_EQ(::mkfifo("bmps/kept.bmp", 0666), 0);  // nobody will ever write to it
    expectnopicture(0);
}

}  // namespace tessaly

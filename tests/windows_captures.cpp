// Captures in the real windows: the files that other programs open.

#include "picturefiles/rasterview.h"
#include "tests/windowsession.h"
#include "windows/qt/canvas.h"

namespace tessaly {

using windows_captures = windowsession;

// Rows of the list: the picture, its record, and both under a name that is not valid UTF-8.
TEST_F(windows_captures, eitherFileBringsThePictureBack) {
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

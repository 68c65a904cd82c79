// The program with its windows.

#include "picturefiles/picturefile.h"
#include "windows/qt/binding.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <clocale>

int main(int argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // figures are written with a point, wherever the user lives
    QApplication::setApplicationName("tessaly");
    QGuiApplication::setDesktopFileName("tessaly");
    tessaly::setlook(app);
    tessaly::usepicturefiles();
    tessaly::openwindows(tessaly::decoratewindow);
    const int status = QApplication::exec();
    tessaly::dropwindows();
    return status;
}

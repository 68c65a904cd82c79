// The program with its windows.

#include "windows/qt/binding.h"
#include "windows/qt/dress.h"
#include "windows/qt/look.h"
#include "windows/qt/picturefiles/picturefile.h"

#include <clocale>

int main(int argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // figures are written with a point, wherever the user lives
    QApplication::setApplicationName("tessaly");
    QGuiApplication::setDesktopFileName("tessaly");
    tessaly::setlook(app);
    tessaly::usepicturefiles();
    tessaly::openwindows(tessaly::dresswindow);
    const int status = QApplication::exec();
    tessaly::dropwindows();
    return status;
}

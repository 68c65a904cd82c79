// The program with its windows.

#include "picturefiles/picturefile.h"
#include "windows/qt/binding.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <clocale>

int main(int argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // numbers have a decimal point in every locale
    QApplication::setApplicationName("tessaly");
    QGuiApplication::setDesktopFileName("tessaly");
    tessaly::setstyle(app);
    tessaly::usepicturefiles();
    tessaly::openwindows(tessaly::decoratewindow);
    const int status = QApplication::exec();
    tessaly::destroywindows();
    return status;
}

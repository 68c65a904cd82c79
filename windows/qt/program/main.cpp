// The program with its windows.

#include "picturefiles/picturefile.h"
#include "windows/qt/binding.h"
#include "windows/qt/style.h"

#include <clocale>

int main(int argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // numbers have a decimal point in every locale
    QApplication::setApplicationName("tessaly");
    QGuiApplication::setDesktopFileName("tessaly");
    tessaly::setstyle();
    tessaly::usepicturefiles();
    tessaly::openwindows();
    const int status = QApplication::exec();
    tessaly::destroywindows();
    return status;
}

// report TEXT: shows a message window that says why the launcher cannot start the program, because a user who starts
// the program from a menu sees no terminal.

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 2) return 2;
    QGuiApplication::setDesktopFileName("tessaly");
    QApplication::setWindowIcon(
        QIcon(QCoreApplication::applicationDirPath() + "/" TESSALY_ICONS "/128x128/apps/tessaly.png"));
    QMessageBox box(QMessageBox::Critical, "Tessaly", QString::fromLocal8Bit(argv[1]));
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
    return 0;
}

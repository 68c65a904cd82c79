// Style, palette, fonts and icon of all windows. Font sizes are pixels, because points depend on the desktop's
// settings.

#include "windows/qt/style.h"

#include <QFile>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QToolTip>

namespace tessaly {

namespace {

// The captions fit with the letter widths of the first four; DejaVu Sans is wider.
const QStringList captionfamilies{"Liberation Sans", "Arimo", "Arial", "Helvetica", "DejaVu Sans"};
const QStringList pagefamilies{"Fixedsys", "Fixedsys Excelsior 3.01", "Fixedsys Excelsior", "DejaVu Sans Mono",
                               "Liberation Mono"};
constexpr int pagepixels = 13;

QPalette stylepalette() {
    const QColor ink(0, 0, 0), grey(192, 192, 192), buttoncolour(226, 226, 226), paper(255, 255, 255),
        pale(128, 128, 128);
    const QColor chosen(36, 84, 150);
    QPalette palette(ink, buttoncolour, paper, pale, QColor(160, 160, 160), ink, paper, paper, grey);
    palette.setColor(QPalette::Highlight, chosen);
    palette.setColor(QPalette::HighlightedText, paper);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, pale);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, pale);
    return palette;
}

}  // namespace

void setstyle() {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(stylepalette());
    QApplication::setFont(captionfont());
    QApplication::setWindowIcon(pictureof("tessaly"));  // of windows and message boxes
    QToolTip::setPalette(stylepalette());
    QToolTip::setFont(captionfont());
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setQuitOnLastWindowClosed(false);
}

QFont captionfont(int pixels, QFont::Weight weight) {
    QFont font(captionfamilies);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QFont pagefont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setFamilies(pagefamilies + font.families());
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPixelSize(pagepixels);
    return font;
}

QIcon pictureof(const std::string& name) {
    const QString path = ":/pictures/" + QString::fromStdString(name);
    QIcon picture;
    for (const char* suffix : {".png", "@2x.png"}) picture.addPixmap(QPixmap(path + suffix));
    if (!QFile::exists(path + ".svg")) return picture;
    // Draw it at the sizes that desktops use. QIcon could read SVG only with a plugin that may not be installed.
    QSvgRenderer drawing(path + ".svg");
    for (const int pixels : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QPixmap drawn(drawing.defaultSize().scaled(pixels, pixels, Qt::KeepAspectRatio));
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        drawing.render(&painter);
        painter.end();
        picture.addPixmap(drawn);
    }
    return picture;
}

QColor screencolour(colour c) { return {c.red, c.green, c.blue}; }

QColor readablecolour(const QColor& background) {
    const int brightness = (299 * background.red() + 587 * background.green() + 114 * background.blue()) / 1000;
    return brightness > 110 ? QColor(0, 0, 0) : QColor(255, 255, 255);
}

}  // namespace tessaly

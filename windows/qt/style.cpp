// Style, palette, fonts and icon of all windows. Font sizes are pixels, because points depend on the desktop's
// settings.

#include "windows/qt/style.h"

#include <QFontDatabase>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QToolTip>

namespace tessaly {

namespace {

// The captions were measured with the letter widths of the first four; DejaVu Sans is wider.
const QStringList captionfamilies{"Liberation Sans", "Arimo", "Arial", "Helvetica", "DejaVu Sans"};
const QStringList pagefamilies{"Fixedsys", "Fixedsys Excelsior 3.01", "Fixedsys Excelsior"};
constexpr int pagepixels = 13;

QPalette stylepalette() {
    const QColor ink(0, 0, 0), grey(192, 192, 192), buttoncolour(226, 226, 226), paper(255, 255, 255),
        pale(128, 128, 128);
    const QColor chosen(36, 84, 150);
    QPalette palette(ink, buttoncolour, paper, pale, QColor(160, 160, 160), ink, paper, paper, grey);
    palette.setColor(QPalette::Highlight, chosen);
    palette.setColor(QPalette::HighlightedText, paper);
    palette.setColor(QPalette::AlternateBase, QColor(244, 244, 244));
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, pale);
    palette.setColor(QPalette::Link, chosen);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, pale);
    return palette;
}

// Draws the icon at the sizes that desktops use. QIcon could read SVG only with a plugin that may not be installed.
QIcon programicon() {
    QSvgRenderer drawing(QString(":/pictures/tessaly.svg"));
    QIcon icon;
    for (const int pixels : {16, 22, 24, 32, 48, 64, 128, 256}) {
        QPixmap picture(pixels, pixels);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

}  // namespace

void setstyle(QApplication& app) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(stylepalette());
    QApplication::setFont(captionfont());
    QApplication::setWindowIcon(programicon());  // of windows and message boxes
    QToolTip::setPalette(stylepalette());
    QToolTip::setFont(captionfont());
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    app.setQuitOnLastWindowClosed(false);
}

QFont captionfont(int pixels) {
    QFont font(captionfamilies);
    font.setPixelSize(pixels);
    return font;
}

QFont pagefont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    QStringList families = pagefamilies;
    families << "DejaVu Sans Mono"
             << "Liberation Mono" << font.families();
    font.setFamilies(families);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPixelSize(pagepixels);
    return font;
}

QColor screencolour(colour c) { return {c.red, c.green, c.blue}; }

QColor readablecolour(const QColor& background) {
    const int brightness = (299 * background.red() + 587 * background.green() + 114 * background.blue()) / 1000;
    return brightness > 110 ? QColor(0, 0, 0) : QColor(255, 255, 255);
}

}  // namespace tessaly

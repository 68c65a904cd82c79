// Paints the buttons. The smallest are so low that the desktop style would cut their captions.

#include "windows/qt/button.h"

#include "windows/qt/style.h"

#include <QFile>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QScrollArea>

#include <cmath>
#include <map>

namespace tessaly {

namespace {

const QColor ringcolour(36, 84, 150);
constexpr int minpixels = 8;                   // of letters
constexpr int sidemargin = 3, edgemargin = 1;  // pixels between caption and rim, at the sides and above and below

// Breaks words into lines, each with as many words as fit into the width, at least one.
QStringList greedylines(const QStringList& words, const QFontMetrics& metrics, int width) {
    QStringList lines;
    for (const QString& word : words) {
        if (!lines.isEmpty() && metrics.horizontalAdvance(lines.back() + ' ' + word) <= width)
            lines.back() += ' ' + word;
        else
            lines << word;
    }
    return lines;
}

int widest(const QStringList& lines, const QFontMetrics& metrics) {
    int width = 0;
    for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
    return width;
}

// Breaks words into as few lines as the width allows, and of all such lines returns the narrowest.
QStringList evenlines(const QStringList& words, const QFontMetrics& metrics, int width) {
    QStringList lines = greedylines(words, metrics, width);
    for (;;) {
        const QStringList narrower = greedylines(words, metrics, widest(lines, metrics) - 1);
        if (narrower.size() != lines.size() || widest(narrower, metrics) >= widest(lines, metrics)) return lines;
        lines = narrower;
    }
}

int linepitch(const QFontMetrics& metrics) { return metrics.capHeight() + metrics.descent() + 2; }

// Returns the height of n lines, from the top of a capital letter to the bottom of a "g".
int textheight(int n, const QFontMetrics& metrics) {
    return metrics.capHeight() + metrics.descent() + (n - 1) * linepitch(metrics);
}

QFont buttonfont(int pixels, bool bold) {
    QFont font = captionfont(pixels);
    font.setBold(bold);
    return font;
}

// Returns a colour mixed with the given percentage of another one.
QColor mixed(const QColor& colour, const QColor& other, int percent) {
    const auto mean = [percent](int a, int b) { return (a * (100 - percent) + b * percent) / 100; };
    return {mean(colour.red(), other.red()), mean(colour.green(), other.green()), mean(colour.blue(), other.blue())};
}

// Returns the button in this direction with the least distance, in which a deviation to the side counts double; nullptr
// if there is none.
QPushButton* nearestbutton(const QWidget& plan, QPoint from, QPoint direction) {
    QPushButton* nearest = nullptr;
    int least = 0;
    for (QPushButton* b : plan.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QPoint offset = b->geometry().center() - from;
        const int along = QPoint::dotProduct(offset, direction);
        const int aside = std::abs(QPoint::dotProduct(offset, {direction.y(), direction.x()}));
        const int distance = along + 2 * aside;
        if (b->isHidden() || along <= 0 || 2 * aside > 3 * along || (nearest && distance >= least)) continue;
        nearest = b;
        least = distance;
    }
    return nearest;
}

}  // namespace

captionlines wrapcaption(const QString& caption, QSize size, bool bold) {
    const QStringList words = caption.split(' ', Qt::SkipEmptyParts);
    const int width = size.width() - 2 * sidemargin, height = size.height() - 2 * edgemargin;
    captionlines best{{}, captionpixels, false};
    for (int pixels = captionpixels; pixels >= minpixels; --pixels) {
        const QFontMetrics metrics(buttonfont(pixels, bold));
        best = {evenlines(words, metrics, width), pixels, false};
        best.fits =
            widest(best.lines, metrics) <= width && textheight(static_cast<int>(best.lines.size()), metrics) <= height;
        if (best.fits) break;
    }
    return best;
}

bool movefocusbyarrow(const QWidget& plan, QPoint from, int key) {
    static const std::map<int, QPoint> arrows{
        {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    const auto arrow = arrows.find(key);
    if (arrow == arrows.end()) return false;
    QPushButton* const next = nearestbutton(plan, from, arrow->second);
    if (!next) return true;
    next->setFocus(Qt::TabFocusReason);
    if (auto* frame = qobject_cast<QScrollArea*>(plan.window())) frame->ensureWidgetVisible(next);
    return true;
}

picture::picture(const QString& name) {
    const QString png = ":/pictures/" + name + ".png", svg = ":/pictures/" + name + ".svg";
    if (QFile::exists(png)) {
        pixels.load(png);
        dense.load(":/pictures/" + name + "@2x.png");
    } else if (QFile::exists(svg))
        drawing.load(svg);
}

QSize picture::size() const { return pixels.isNull() ? drawing.defaultSize() : pixels.size(); }

// Averages pixels, so that a reduced picture keeps its thin lines. A picture of the same size remains unchanged.
QPixmap picture::scaledto(QSizeF size, qreal ratio) const {
    const QPixmap& from = ratio > 1 && !dense.isNull() ? dense : pixels;
    QPixmap scaled = from.scaled((size * ratio).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

void picture::paint(QPainter& painter, const QRectF& into) const {
    if (isnull()) return;
    QSizeF fitted = QSizeF(size()).scaled(into.size(), Qt::KeepAspectRatio);
    QRectF bounds({0, 0}, fitted);
    bounds.moveCenter(into.center());
    painter.setRenderHint(QPainter::Antialiasing);
    if (pixels.isNull())
        drawing.render(&painter, bounds);
    else
        painter.drawPixmap(bounds.topLeft(), scaledto(bounds.size(), painter.device()->devicePixelRatioF()));
}

button::button(const QColor& itsbackground, QWidget* parent) : QPushButton(parent), background(itsbackground) {
    setAttribute(Qt::WA_Hover);
    setAutoDefault(false);
}

void button::setpicture(const QString& name) { image = std::make_unique<picture>(name); }

void button::setchosen(bool on) {
    if (on == chosen) return;
    chosen = on;
    update();
}

void button::setmarked(bool on) {
    if (on == marked) return;
    marked = on;
    update();
}

void button::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintbackground(painter);
    if (lookspressed()) painter.translate(1, 1);
    if (image && !image->isnull())
        image->paint(painter, QRectF(visiblepart()).adjusted(2, 2, -2, -2));
    else
        paintcaption(painter);
    if (marked) paintmark(painter);
    if (!chosen) return;
    painter.setPen(QPen(ringcolour, 3));  // over a picture, which may cover the background
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(visiblepart()).adjusted(1, 1, -3, -3));
}

QRect button::visiblepart() const { return rect() & parentWidget()->rect().translated(-pos()); }

void button::paintbackground(QPainter& painter) const {
    const QColor base = lookspressed() ? mixed(background, QColor(0, 0, 0), 35)
                        : underMouse() ? mixed(background, QColor(255, 255, 255), 50)
                                       : background;
    QLinearGradient shade(0, 0, 0, height());
    shade.setColorAt(0, lookspressed() ? base.darker(106) : base.lighter(108));
    shade.setColorAt(1, lookspressed() ? base : base.darker(106));
    const QRectF rim = QRectF(visiblepart()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    // Show the focus ring only in a window whose focus was moved by the keyboard.
    const bool ring = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    painter.setPen(QPen(ring ? ringcolour : background.darker(170), 1));
    painter.setBrush(shade);
    painter.drawRoundedRect(rim, 2, 2);
    painter.setBrush(Qt::NoBrush);
    if (lookspressed())
        painter.setPen(QPen(background.darker(170), 1));
    else
        painter.setPen(QPen(QColor(255, 255, 255, 110), 1));
    painter.drawLine(QPointF(2, 1.5), QPointF(width() - 2, 1.5));
    if (ring) {
        painter.setPen(QPen(readablecolour(background) == QColor(0, 0, 0) ? ringcolour : QColor(255, 255, 255), 1));
        painter.drawRoundedRect(rim.adjusted(1, 1, -1, -1), 1, 1);
    }
}

void button::paintcaption(QPainter& painter) const {
    if (text().isEmpty()) return;
    const bool bold = font().bold();
    const captionlines caption = font().pixelSize() > captionpixels ? captionlines{{text()}, font().pixelSize(), true}
                                                                    : wrapcaption(text(), size(), bold);
    const QFont letters = buttonfont(caption.pixels, bold);
    const QFontMetrics metrics(letters);
    painter.setFont(letters);
    painter.setPen(readablecolour(background));
    const auto count = static_cast<int>(caption.lines.size());
    // Centre the capital letters: the bottom of a "g" may be nearer to the rim than the top of a capital.
    const int capitals = metrics.capHeight() + (count - 1) * linepitch(metrics);
    int base = (height() - capitals) / 2 + metrics.capHeight();
    if (count > 1) base = std::min(base, height() - edgemargin - metrics.descent() - (count - 1) * linepitch(metrics));
    for (const QString& line : caption.lines) {
        painter.drawText((width() - metrics.horizontalAdvance(line) + 1) / 2, base, line);
        base += linepitch(metrics);
    }
}

// Paints a white disc with a black rim, which can be seen on every colour.
void button::paintmark(QPainter& painter) const {
    constexpr double radius = 3.5;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 0, 0), 1.5));
    painter.setBrush(QColor(255, 255, 255));
    painter.drawEllipse(QRectF(rect()).center(), radius, radius);
}

void button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else if (!movefocusbyarrow(*parentWidget(), geometry().center(), event->key()))
        QPushButton::keyPressEvent(event);
}

}  // namespace tessaly

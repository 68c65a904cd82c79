// Paints the buttons. Qt's style would cut the captions of the lowest ones.

#include "windows/qt/button.h"

#include "windows/qt/style.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QScrollArea>

namespace tessaly {

namespace {

const QColor ringcolour(36, 84, 150), black(0, 0, 0), white(255, 255, 255);
constexpr int minpixels = 8;  // size of letters
constexpr int captionflags = Qt::AlignCenter | Qt::TextWordWrap;

// Returns a colour mixed with the given percentage of another one.
QColor mixed(const QColor& colour, const QColor& other, int percent) {
    const auto mean = [percent](int a, int b) { return (a * (100 - percent) + b * percent) / 100; };
    return {mean(colour.red(), other.red()), mean(colour.green(), other.green()), mean(colour.blue(), other.blue())};
}

}  // namespace

captionlayout layoutcaption(const QString& caption, QSize size, QFont font) {
    const QRect inner = QRect({0, 0}, size).adjusted(3, 1, -3, -1);
    const auto wrapped = [&](const QRect& into) {
        return QFontMetrics(font).boundingRect(into, captionflags, caption);
    };
    while (!inner.contains(wrapped(inner)) && font.pixelSize() > minpixels) font.setPixelSize(font.pixelSize() - 1);
    const int height = wrapped(inner).height();
    QRect bounds = inner;
    for (QRect narrower = inner; narrower.width() > 0; narrower.adjust(1, 0, -1, 0)) {
        const QRect lines = wrapped(narrower);
        if (lines.height() > height || lines.width() > narrower.width()) break;
        bounds = narrower;
    }
    return {font, bounds, inner.contains(wrapped(bounds))};
}

button::button(const QColor& itsbackground, QWidget* parent) : QPushButton(parent), background(itsbackground) {
    setAutoDefault(false);
}

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
    painter.setRenderHint(QPainter::Antialiasing);
    paintbackground(painter);
    if (lookspressed()) painter.translate(1, 1);
    if (icon().isNull())
        paintcaption(painter);
    else
        icon().paint(&painter, visiblepart().adjusted(2, 2, -2, -2));
    if (marked) paintmark(painter);
    if (!chosen) return;
    painter.setPen(QPen(ringcolour, 3));  // over a picture, which may cover the background
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(visiblepart()).adjusted(1, 1, -3, -3));
}

QRect button::visiblepart() const { return rect() & parentWidget()->rect().translated(-pos()); }

void button::paintbackground(QPainter& painter) const {
    const QColor base = lookspressed() ? mixed(background, black, 35)
                        : underMouse() ? mixed(background, white, 50)
                                       : background;
    QLinearGradient shade(0, 0, 0, height());
    shade.setColorAt(0, lookspressed() ? base.darker(106) : base.lighter(108));
    shade.setColorAt(1, lookspressed() ? base : base.darker(106));
    const QRectF rim = QRectF(visiblepart()).adjusted(0.5, 0.5, -0.5, -0.5);
    // Show the focus ring only in a window whose focus was moved by the keyboard.
    const bool ring = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    painter.setPen(ring ? ringcolour : background.darker(170));
    painter.setBrush(shade);
    painter.drawRoundedRect(rim, 2, 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(lookspressed() ? background.darker(170) : QColor(255, 255, 255, 110));
    painter.drawLine(QPointF(2, 1.5), QPointF(width() - 2, 1.5));
    if (ring) {
        painter.setPen(readablecolour(background) == black ? ringcolour : white);
        painter.drawRoundedRect(rim.adjusted(1, 1, -1, -1), 1, 1);
    }
}

void button::paintcaption(QPainter& painter) const {
    const QString caption = text().simplified();
    const captionlayout layout = layoutcaption(caption, size(), font());
    painter.setFont(layout.font);
    painter.setPen(readablecolour(background));
    painter.drawText(layout.bounds, captionflags, caption);
}

// Paints a white disc with a black rim, which can be seen on every colour.
void button::paintmark(QPainter& painter) const {
    constexpr double radius = 3.5;
    painter.setPen(QPen(black, 1.5));
    painter.setBrush(white);
    painter.drawEllipse(QRectF(rect()).center(), radius, radius);
}

void button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QPushButton::keyPressEvent(event);  // an arrow key moves the focus to the nearest button
    auto* const frame = qobject_cast<QScrollArea*>(window());
    if (frame && frame->focusWidget()) frame->ensureWidgetVisible(frame->focusWidget());
}

}  // namespace tessaly

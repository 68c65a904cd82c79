// Paints the two images, and repaints the progress strip during a replay, when no other event is handled.

#include "windows/qt/canvas.h"

#include "core/controls.h"
#include "picturefiles/rasterview.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPointer>

#include <cmath>

namespace tessaly {

namespace {

QPointer<QWidget> strip;              // the widget of progressbar, while it exists
constexpr qint64 flushinterval = 15;  // ms; repainting more often would only slow a replay

// Repaints its widget at each flush. viewport, behind the strip, is repainted at the end of the event.
class progressraster : public raster {
  public:
    using raster::raster;

    void flush() override {
        if (!strip || (sinceflush.isValid() && sinceflush.elapsed() < flushinterval)) return;
        sinceflush.start();
        strip->setVisible(progressbar.shown);
        strip->raise();
        strip->repaint();
    }

  private:
    QElapsedTimer sinceflush;
};

}  // namespace

canvas::canvas(const raster& itsimage, QWidget* parent) : QWidget(parent), image(itsimage) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (&image == &progressimage()) strip = this;
}

void canvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // At an integer scale each pixel becomes a square of screen pixels. At a fractional scale the image is smoothed:
    // otherwise thin lines would vary in width.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, devicePixelRatioF() != std::floor(devicePixelRatioF()));
    painter.drawImage(rect(), viewof(image));
}

raster& viewportimage() {
    static raster image(viewportwidth, viewportheight);
    return image;
}

raster& progressimage() {
    static progressraster image(progresswidth, progressheight);
    return image;
}

}  // namespace tessaly

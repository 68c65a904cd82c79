// Paints the two images, and repaints the progress strip during a replay, when no other event is handled.

#include "windows/qt/canvas.h"

#include "core/controls.h"
#include "picturefiles/rasterview.h"

#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace tessaly {

namespace {

constexpr qint64 flushinterval = 15;  // ms; repainting more often would only slow a replay

// flush repaints only the strip; viewport, which lies under it, is repainted at the end of the event.
class progressraster : public raster {
  public:
    progressraster() : raster(progresswidth, progressheight) {}

    void flush() override {
        if (!shownon || (sinceflush.isValid() && sinceflush.elapsed() < flushinterval)) return;
        sinceflush.start();
        shownon->setVisible(progressbar.shown);
        shownon->raise();
        shownon->repaint();
    }

    canvas* shownon = nullptr;

  private:
    QElapsedTimer sinceflush;
};

progressraster& strip() {
    static progressraster image;
    return image;
}

}  // namespace

canvas::canvas(const raster& itsimage, QWidget* parent) : QWidget(parent), image(itsimage) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void canvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    // At a whole scale each pixel becomes a square of screen pixels. At a fractional scale the image is smoothed:
    // otherwise thin lines would vary in width.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, devicePixelRatioF() != std::floor(devicePixelRatioF()));
    painter.drawImage(rect(), viewof(image));
}

raster& viewportimage() {
    static raster image(viewportwidth, viewportheight);
    return image;
}

raster& progressimage() { return strip(); }

void showprogresson(canvas* on) { strip().shownon = on; }

}  // namespace tessaly

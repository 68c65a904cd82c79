// Painting of the two images, and the progress strip's way to the screen while a replay holds the window.

#include "windows/qt/canvas.h"

#include "core/controls.h"
#include "picturefiles/rasterview.h"

#include <QElapsedTimer>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace tessaly {

namespace {

constexpr qint64 flushinterval = 15;  // ms: a strip that moves faster only costs time

// The strip alone is repainted by flush: viewport, which lies under it, waits for the end of the event.
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
    // A pixel stays a pixel, but where the screen has no whole number of its own for each: thin lines would go uneven.
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

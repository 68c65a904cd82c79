// Draws lines with QPainter, and counts the pixels of lines.

#include "bench/surfaces.h"

#include "render/lineclip.h"

namespace tessaly {

painterimage::painterimage() : image(viewportwidth, viewportheight, QImage::Format_RGB32), painter(&image) {
    image.fill(Qt::white);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QColor(0, 0, 0));
}

void painterimage::line(float x1, float y1, float x2, float y2, colour c) {
    if (!(c == pencolour)) {
        painter.setPen(QColor(c.red, c.green, c.blue));
        pencolour = c;
    }
    painter.drawLine(
        QLineF(static_cast<qreal>(x1), static_cast<qreal>(y1), static_cast<qreal>(x2), static_cast<qreal>(y2)));
}

void pixelcounter::line(float x1, float y1, float x2, float y2, colour) {
    pixelline l;
    if (topixels(x1, y1, x2, y2, l)) pixels += drawpixels(l, image, 0);
}

}  // namespace tessaly

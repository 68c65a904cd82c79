// Draws the diagram behind the buttons of the quick views: the layout grid seen from above with two axes, and a scale
// beside each column of buttons for heights.

#include "building/buttonfamilies.h"
#include "view/quickviews.h"
#include "windows/qt/binding.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <QPainter>

namespace tessaly {

namespace {

const QColor linecolour(96, 96, 160), baycolour(150, 150, 210), gridcolour(214, 214, 255);

// Returns the middle of a quick view button.
QPointF middleof(std::string_view name) { return QRectF(widgetof(*findcontrol(name))->geometry()).center(); }

void drawgrid(QPainter& painter) {
    const QRectF grid(pointat(3120, 3240), pointat(3120 + 3375, 3240 + 2415));
    const buttonfamily& posts = allbuttonfamilies().front();  // at the corners of the bays
    const int baysacross = posts.county - 1, baysdown = posts.countx - 1;
    painter.setPen(linecolour);
    painter.setBrush(gridcolour);
    painter.drawRect(grid);
    painter.setPen(baycolour);
    for (int bay = 1; bay < baysacross; ++bay) {
        const double x = grid.left() + grid.width() * bay / baysacross;
        painter.drawLine(QPointF(x, grid.top()), QPointF(x, grid.bottom()));
    }
    for (int bay = 1; bay < baysdown; ++bay) {
        const double y = grid.top() + grid.height() * bay / baysdown;
        painter.drawLine(QPointF(grid.left(), y), QPointF(grid.right(), y));
    }
}

// Draws the axes, which cross at the origin of the model.
void drawaxes(QPainter& painter) {
    painter.setPen(QPen(linecolour, 1, Qt::DashLine));
    painter.drawLine(middleof("perpxm1800y0"), middleof("perpx1800y0"));
    painter.drawLine(middleof("perpx0ym1800"), middleof("perpx0y1800"));
}

// Draws a scale to the right of the buttons of a kind: a line with a tick and a number for each of them.
void drawscale(QPainter& painter, const quickviewkind& kind) {
    QPolygonF ticks;
    for (const quickview& q : allquickviews()) {
        if (&q.kind != &kind) continue;
        ticks << middleof(q.name) + QPointF(17, 0);
        painter.drawLine(ticks.back() - QPointF(4, 0), ticks.back() + QPointF(4, 0));
        painter.drawText(ticks.back() + QPointF(10, 4), QString::number(q.numbers[0]));
    }
    painter.drawPolyline(ticks);
}

void drawdiagram(QPainter& painter) {
    drawgrid(painter);
    drawaxes(painter);
    painter.setPen(linecolour);
    drawscale(painter, eyeheight);
    drawscale(painter, focusheight);
}

}  // namespace

void decorateeasyviews(windowframe& f) { f.paintbackground = drawdiagram; }

}  // namespace tessaly

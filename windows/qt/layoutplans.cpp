// Draws the decoration of the three layout windows: the grid, posts and beams, the axes, and the panel type of the next
// click. Marks the buttons whose element is built. Coordinates are twips of the window unless stated otherwise; X of
// the plan runs downward, Y to the right.

#include "building/buildstate.h"
#include "building/builtelements.h"
#include "windows/qt/binding.h"
#include "windows/qt/button.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <QPainter>

namespace tessaly {

namespace {

constexpr int columns = 8, rows = 6;  // grid points across and down

// The grid of a window; overhang: by how much its lines extend beyond the outer grid points.
struct grid {
    int left0, top0, pitch, overhang;
    int left(int column) const { return left0 + pitch * column; }
    int top(int row) const { return top0 + pitch * row; }
};

QRectF box(int lefttwips, int toptwips, int widthtwips, int heighttwips) {
    const QPointF size = pointat(widthtwips, heighttwips);
    return {pointat(lefttwips, toptwips), QSizeF(size.x(), size.y())};
}

void drawgrid(QPainter& painter, const grid& g, const QColor& colour) {
    painter.setPen(QPen(colour, 1, Qt::DashLine));
    for (int column = 0; column < columns; ++column)
        painter.drawLine(pointat(g.left(column), g.top0 - g.overhang),
                         pointat(g.left(column), g.top(rows - 1) + g.overhang));
    for (int row = 0; row < rows; ++row)
        painter.drawLine(pointat(g.left0 - g.overhang, g.top(row)),
                         pointat(g.left(columns - 1) + g.overhang, g.top(row)));
}

void drawarrow(QPainter& painter, QPointF from, QPointF to) {
    const QPointF along = (to - from) / std::hypot(to.x() - from.x(), to.y() - from.y());
    const QPointF across(-along.y(), along.x());
    painter.drawLine(from, to);
    painter.drawLine(to, to - along * 6 + across * 3);
    painter.drawLine(to, to - along * 6 - across * 3);
}

// Draws the axes from the upper left corner of the plan: Y to the right, X downward.
void drawaxes(QPainter& painter, int lefttwips, int toptwips, int righttwips, int bottomtwips, const QColor& colour) {
    painter.setPen(QPen(colour, 1));
    drawarrow(painter, pointat(lefttwips, toptwips), pointat(righttwips, toptwips));
    drawarrow(painter, pointat(lefttwips, toptwips), pointat(lefttwips, bottomtwips));
}

void drawposts(QPainter& painter, const grid& g, int size, const QColor& fill) {
    for (int column = 0; column < columns; ++column)
        for (int row = 0; row < rows; ++row)
            painter.fillRect(box(g.left(column) - size / 2, g.top(row) - size / 2, size, size), fill);
}

void drawbeams(QPainter& painter, const grid& g, int thickness, const QColor& fill) {
    for (int column = 0; column < columns; ++column)
        for (int row = 0; row < rows; ++row) {
            if (column + 1 < columns)
                painter.fillRect(box(g.left(column), g.top(row) - thickness / 2, g.pitch, thickness), fill);
            if (row + 1 < rows)
                painter.fillRect(box(g.left(column) - thickness / 2, g.top(row), thickness, g.pitch), fill);
        }
}

void setbold(const control& label) {
    QWidget* widget = widgetof(label);
    QFont font = captionfont();
    font.setBold(true);
    widget->setFont(font);
}

// Marks the buttons whose element is built on the current floor, and sets their tooltips.
void showbuilt(const window& plan) {
    const builtelements& built = builtelementsof(plan);
    for (const control* c : plan.controls) {
        if (c->elementnumber == 0) continue;
        auto* const position = dynamic_cast<button*>(widgetof(*c));
        const QString tip = QString::fromStdString(builttooltip(*c, built));
        if (position->toolTip() == tip) continue;
        position->setmarked(built.countof(*c) > 0);
        position->setToolTip(tip);
        position->setAccessibleDescription(tip);
    }
}

void decoratelayout(windowframe& f, const control& labelx, const control& labely, void (*draw)(QPainter&)) {
    setbold(labelx);
    setbold(labely);
    f.decoration = [draw](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
    };
    f.afterevent = [&f] { showbuilt(f.source); };
}

constexpr grid girdergrid{607, 607, 1200, 420}, panelgrid{637, 1117, 960, 360}, roofgrid{667, 667, 840, 300};

void drawgirderplan(QPainter& painter) {
    drawgrid(painter, girdergrid, QColor(200, 170, 120));
    drawaxes(painter, 190, 190, 4200, 3200, QColor(128, 0, 0));
}

// The bounds of the picture of the next panel type, in pixels of the plan.
const QRect nextpanelbounds(6, 2, 74, 40);

// Updates the picture and the description of the panel type that the next click places.
void shownextpanel(windowframe& f) {
    const control* const next = nextpanelbutton();
    const QString description = next ? "The next click places: " + QString::fromStdString(next->accessiblename) : "";
    if (f.accessibleDescription() == description) return;
    f.setAccessibleDescription(description);
    f.plan()->update(nextpanelbounds);
}

void drawpanelplan(QPainter& painter) {
    if (const control* const next = nextpanelbutton())
        picture(QString::fromStdString(next->name)).paint(painter, nextpanelbounds);
    drawgrid(painter, panelgrid, QColor(140, 140, 210));
    drawbeams(painter, panelgrid, 105, QColor(170, 170, 225));
    drawposts(painter, panelgrid, 165, QColor(96, 96, 150));
    drawaxes(painter, 165, 645, 2000, 3150, QColor(64, 64, 128));
}

void drawroofplan(QPainter& painter) {
    drawgrid(painter, roofgrid, QColor(200, 70, 70));
    drawbeams(painter, roofgrid, 45, QColor(225, 96, 96));
    drawposts(painter, roofgrid, 90, QColor(150, 40, 40));
    drawaxes(painter, 330, 330, 3100, 2300, QColor(110, 20, 20));
}

}  // namespace

void decoratelayoutgirder(windowframe& f) { decoratelayout(f, girderlabelx, girderlabely, drawgirderplan); }
void decoratelayoutpanels(windowframe& f) {
    decoratelayout(f, panellabelx, panellabely, drawpanelplan);
    f.afterevent = [&f] {
        showbuilt(f.source);
        shownextpanel(f);
    };
}
void decoratelayoutroof(windowframe& f) { decoratelayout(f, rooflabelx, rooflabely, drawroofplan); }

}  // namespace tessaly

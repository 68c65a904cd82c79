// Decorates the three layout windows: draws the plan behind the position buttons, marks the buttons whose element is
// built, and shows the panel type of the next click. The positions of the buttons and labels determine the plan. Its X
// axis points downward and its Y axis to the right. Coordinates are twips of the window unless stated otherwise.

#include "building/buildstate.h"
#include "building/builtelements.h"
#include "building/buttonfamilies.h"
#include "windows/qt/binding.h"
#include "windows/qt/button.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

struct planstyle {
    const window* layout;
    const control &labelx, &labely;
    QColor axescolour, gridcolour;
    int beamwidth, postwidth;  // twips; 0: not drawn, since the buttons would hide them
    QColor beamcolour, postcolour;
};
const planstyle planstyles[] = {
    // clang-format off
    {&layoutgirder, girderlabelx, girderlabely, {128,  0,   0}, {200, 170, 120},   0,   0, {},              {}},
    {&layoutpanels, panellabelx,  panellabely,  { 64, 64, 128}, {140, 140, 210}, 105, 165, {170, 170, 225}, { 96, 96, 150}},
    {&layoutroof,   rooflabelx,   rooflabely,   {110, 20,  20}, {200,  70,  70},  45,  90, {225,  96,  96}, {150, 40,  40}},
    // clang-format on
};

// The grid points of a plan: the possible positions of posts.
struct grid {
    int left0, top0, pitch, columns, rows;
    int left(int column) const { return left0 + pitch * column; }
    int top(int row) const { return top0 + pitch * row; }
};

// Returns the grid of a layout window, centred behind its position buttons.
grid gridof(const window& layout) {
    const buttonfamily& posts = allbuttonfamilies().front();
    grid g{0, 0, 0, posts.county, posts.countx};
    QRect buttons;
    for (const buttonfamily& f : allbuttonfamilies()) {
        if (f.layout != &layout) continue;
        g.pitch = f.pitch;
        buttons |= QRect(f.left0, f.top0, f.pitch * (f.county - 1) + f.width, f.pitch * (f.countx - 1) + f.height);
    }
    g.left0 = buttons.center().x() - g.pitch * (g.columns - 1) / 2;
    g.top0 = buttons.center().y() - g.pitch * (g.rows - 1) / 2;
    return g;
}

// Draws the lines through the grid points, extended at both ends.
void drawgrid(QPainter& painter, const grid& g, int extension) {
    for (int column = 0; column < g.columns; ++column)
        painter.drawLine(pointat(g.left(column), g.top0 - extension),
                         pointat(g.left(column), g.top(g.rows - 1) + extension));
    for (int row = 0; row < g.rows; ++row)
        painter.drawLine(pointat(g.left0 - extension, g.top(row)),
                         pointat(g.left(g.columns - 1) + extension, g.top(row)));
}

void drawposts(QPainter& painter, const grid& g) {
    for (int column = 0; column < g.columns; ++column)
        for (int row = 0; row < g.rows; ++row) painter.drawPoint(pointat(g.left(column), g.top(row)));
}

void drawarrow(QPainter& painter, QPointF from, QPointF to) {
    const QPointF along = (to - from) / QLineF(from, to).length();
    const QPointF across(-along.y(), along.x());
    painter.drawLine(from, to);
    painter.drawLine(to, to - along * 6 + across * 3);
    painter.drawLine(to, to - along * 6 - across * 3);
}

void drawplan(QPainter& painter, const planstyle& p) {
    constexpr int gap = 100;  // twips between an axis and its label
    const grid g = gridof(*p.layout);
    const twips &labelx = p.labelx.bounds, &labely = p.labely.bounds;
    const int originleft = labelx.left + labelx.width / 2, origintop = labely.top + labely.height / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(p.gridcolour, 1, Qt::DashLine));
    drawgrid(painter, g, g.left0 - originleft);
    if (p.beamwidth > 0) {
        painter.setPen(QPen(p.beamcolour, p.beamwidth / double{twipsperpixel}, Qt::SolidLine, Qt::FlatCap));
        drawgrid(painter, g, 0);
        painter.setPen(QPen(p.postcolour, p.postwidth / double{twipsperpixel}, Qt::SolidLine, Qt::SquareCap));
        drawposts(painter, g);
    }
    painter.setPen(p.axescolour);
    drawarrow(painter, pointat(originleft, origintop), pointat(labely.left - gap, origintop));
    drawarrow(painter, pointat(originleft, origintop), pointat(originleft, labelx.top - gap));
}

// Marks the buttons whose element is built on the current floor, and says so in their tooltips.
void showbuilt(const window& layout) {
    const builtelements& built = builtelementsof(layout);
    for (control* c : layout.controls) {
        if (c->elementnumber == 0) continue;
        c->tooltipsuffix = builtsuffix(*c, built);
        dynamic_cast<button*>(widgetof(*c))->setmarked(built.countof(*c) > 0);
    }
}

// The bounds of the picture of the next panel type, in pixels of the panel layout.
const QRect nextpanelbounds(6, 2, 74, 40);

// Updates the picture and the description of the panel type that the next click places.
void shownextpanel(windowframe& f) {
    const control* const next = nextpanelbutton();
    const QString description = next ? "The next click places: " + QString::fromStdString(next->accessiblename) : "";
    if (f.accessibleDescription() == description) return;
    f.setAccessibleDescription(description);
    f.content()->update(nextpanelbounds);
}

}  // namespace

void decoratelayout(windowframe& f) {
    const auto& p = *std::find_if(std::begin(planstyles), std::end(planstyles),
                                  [&f](const planstyle& style) { return style.layout == &f.definition; });
    for (const control* c : {&p.labelx, &p.labely}) {
        widgetof(*c)->setFont(captionfont(captionpixels, QFont::Bold));
        qobject_cast<QLabel*>(widgetof(*c))->setAlignment(Qt::AlignCenter);
    }
    const bool panels = p.layout == &layoutpanels;
    f.paintbackground = [&p, panels](QPainter& painter) {
        drawplan(painter, p);
        if (const control* const next = panels ? nextpanelbutton() : nullptr)
            pictureof(next->name).paint(&painter, nextpanelbounds);
    };
    f.refreshcontent = [&f, panels] {
        showbuilt(f.definition);
        if (panels) shownextpanel(f);
    };
}

}  // namespace tessaly

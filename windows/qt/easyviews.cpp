// The quick views' diagram: the layout grid from above with the places around it, and the two scales of heights. The
// lines are fixed; which buttons stand on them is the tables' matter. Coordinates are twips of the window.

#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <QPainter>

namespace tessaly {

namespace {

constexpr int gridleft = 3120, gridtop = 3240, gridwidth = 3375, gridheight = 2415;
constexpr int baysacross = 7, baysdown = 5;

void drawgrid(QPainter& painter) {
    painter.setPen(QPen(QColor(96, 96, 160), 1));
    painter.setBrush(QColor(214, 214, 255));
    painter.drawRect(QRectF(pointat(gridleft, gridtop), pointat(gridleft + gridwidth, gridtop + gridheight)));
    painter.setPen(QPen(QColor(150, 150, 210), 1));
    for (int bay = 1; bay < baysacross; ++bay) {
        const int left = gridleft + gridwidth * bay / baysacross;
        painter.drawLine(pointat(left, gridtop), pointat(left, gridtop + gridheight));
    }
    for (int bay = 1; bay < baysdown; ++bay) {
        const int top = gridtop + gridheight * bay / baysdown;
        painter.drawLine(pointat(gridleft, top), pointat(gridleft + gridwidth, top));
    }
    // The two axes cross where the world's origin is.
    const int middleleft = gridleft + gridwidth / 2, middletop = gridtop + gridheight / 2;
    painter.setPen(QPen(QColor(96, 96, 160), 1, Qt::DashLine));
    painter.drawLine(pointat(middleleft, gridtop - 2600), pointat(middleleft, gridtop + gridheight + 2700));
    painter.drawLine(pointat(gridleft - 2400, middletop), pointat(gridleft + gridwidth + 2500, middletop));
}

// A scale of heights: a line beside the buttons at left, a tick and a figure for each.
struct scale {
    int left, top, step, marks;  // of the topmost button
    int highest, fall;           // model units
};
constexpr scale scales[] = {{12480, 480, 960, 5, 2100, 500}, {10800, 6120, 480, 4, 850, 250}};
constexpr int buttonsize = 255;

void drawscale(QPainter& painter, const scale& s) {
    const int lineleft = s.left + buttonsize + 120, half = buttonsize / 2;
    painter.setPen(QPen(QColor(96, 96, 160), 1));
    painter.drawLine(pointat(lineleft, s.top + half), pointat(lineleft, s.top + s.step * (s.marks - 1) + half));
    for (int mark = 0; mark < s.marks; ++mark) {
        const int top = s.top + s.step * mark + half;
        painter.drawLine(pointat(lineleft - 60, top), pointat(lineleft + 60, top));
        painter.drawText(pointat(lineleft + 150, top + 60), QString::number(s.highest - s.fall * mark));
    }
}

void drawdiagram(QPainter& painter) {
    drawgrid(painter);
    painter.setFont(captionfont());
    for (const scale& s : scales) drawscale(painter, s);
}

}  // namespace

void decorateeasyviews(windowframe& f) { f.decoration = drawdiagram; }

}  // namespace tessaly

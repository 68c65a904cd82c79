// Draws the diagram behind the buttons of the quick views: the layout grid seen from above with two axes, and the two
// scales of heights. The positions of the buttons are set in view/quickviews. Coordinates are twips of the window.

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
    // The two axes cross at the origin of the model.
    const int middleleft = gridleft + gridwidth / 2, middletop = gridtop + gridheight / 2;
    painter.setPen(QPen(QColor(96, 96, 160), 1, Qt::DashLine));
    painter.drawLine(pointat(middleleft, gridtop - 2600), pointat(middleleft, gridtop + gridheight + 2700));
    painter.drawLine(pointat(gridleft - 2400, middletop), pointat(gridleft + gridwidth + 2500, middletop));
}

// A scale of heights: a line to the right of a column of buttons, with a tick and a number for each of them.
struct scale {
    int left, top;           // of the topmost button
    int pitch, ticks;        // pitch: from one button to the next
    int highest, decrement;  // model units
};
constexpr scale scales[] = {{12480, 480, 960, 5, 2100, 500}, {10800, 6120, 480, 4, 850, 250}};
constexpr int buttonsize = 255;

void drawscale(QPainter& painter, const scale& s) {
    const int lineleft = s.left + buttonsize + 120, half = buttonsize / 2;
    painter.setPen(QPen(QColor(96, 96, 160), 1));
    painter.drawLine(pointat(lineleft, s.top + half), pointat(lineleft, s.top + s.pitch * (s.ticks - 1) + half));
    for (int tick = 0; tick < s.ticks; ++tick) {
        const int top = s.top + s.pitch * tick + half;
        painter.drawLine(pointat(lineleft - 60, top), pointat(lineleft + 60, top));
        painter.drawText(pointat(lineleft + 150, top + 60), QString::number(s.highest - s.decrement * tick));
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

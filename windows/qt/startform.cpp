// Decorates the start window with large letters and a drawing of a steel frame behind them.

#include "windows/qt/binding.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"
#include "windows/qt/windowposition.h"

#include <QLabel>
#include <QPainter>

namespace tessaly {

namespace {

constexpr int titlepixels = 32, datepixels = 15, startpixels = 22;

void enlarge(const control& c, int size, bool bold) {
    QWidget* widget = widgetof(c);
    QFont font = captionfont(size);
    font.setBold(bold);
    widget->setFont(font);
    if (auto* label = qobject_cast<QLabel*>(widget)) label->setAlignment(Qt::AlignCenter);
}

// The size of the frame.
constexpr int baysacross = 5, baysdeep = 7, storeys = 3;

// Returns a grid point of the frame, seen from a corner, in pixels of the plan.
QPointF corner(int across, int deep, int up) {
    return {370.0 + 46 * across - 46 * (deep - 2), 488.0 - 15 * across - 15 * deep - 46 * up};
}

void drawframe(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    const auto draw = [&](QPointF a, QPointF b, int distance) {
        const int grey = 122 - 4 * distance;
        painter.setPen(QPen(QColor(grey, grey, grey + 6), 1.6));
        painter.drawLine(a, b);
    };
    for (int across = baysacross; across >= 0; --across)
        for (int deep = baysdeep; deep >= 0; --deep) {
            const int distance = across + deep;  // in bays
            draw(corner(across, deep, 0), corner(across, deep, storeys), distance);
            for (int up = 1; up <= storeys; ++up) {
                if (across < baysacross) draw(corner(across, deep, up), corner(across + 1, deep, up), distance);
                if (deep < baysdeep) draw(corner(across, deep, up), corner(across, deep + 1, up), distance);
            }
        }
}

}  // namespace

void decoratestartform(windowframe& f) {
    f.decoration = drawframe;
    enlarge(Label1, titlepixels, true);
    enlarge(Label3, datepixels, false);
    enlarge(startprogrambtn, startpixels, true);
    f.setfirstposition = [](windowframe& frame) {
        openincentre(frame);
        frame.plan()->setFocusProxy(widgetof(startprogrambtn));
    };
}

}  // namespace tessaly

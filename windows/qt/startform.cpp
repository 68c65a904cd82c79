// Decorates the start window with large letters and a drawing of a steel frame behind them.

#include "windows/qt/binding.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <QLabel>
#include <QPainter>

namespace tessaly {

namespace {

constexpr int titlepixels = 32, datepixels = 15, startpixels = 22;

// The size of the steel frame.
constexpr int baysacross = 5, baysdeep = 7, storeys = 3;

// Returns the pixel of a joint of the steel frame, which is seen from one of its corners.
QPointF joint(int across, int deep, int up) {
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
            draw(joint(across, deep, 0), joint(across, deep, storeys), distance);
            for (int up = 1; up <= storeys; ++up) {
                if (across < baysacross) draw(joint(across, deep, up), joint(across + 1, deep, up), distance);
                if (deep < baysdeep) draw(joint(across, deep, up), joint(across, deep + 1, up), distance);
            }
        }
}

}  // namespace

void decoratestartform(windowframe& f) {
    f.paintbackground = drawframe;
    widgetof(Label1)->setFont(captionfont(titlepixels, QFont::Bold));
    widgetof(Label3)->setFont(captionfont(datepixels));
    widgetof(startprogrambtn)->setFont(captionfont(startpixels, QFont::Bold));
    for (const control* label : {&Label1, &Label3})
        qobject_cast<QLabel*>(widgetof(*label))->setAlignment(Qt::AlignCenter);
    f.content()->setFocusProxy(widgetof(startprogrambtn));
}

}  // namespace tessaly

// Places by what the screen and the other windows leave.

#include "windows/qt/windowposition.h"

#include "windows/qt/binding.h"

#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <vector>

namespace tessaly {

namespace {

constexpr int titlebar = 30, edge = 4;  // pixels: what a desktop may put above and around a window

// What the screen leaves for a window's interior.
QRect roomfor(const windowframe& f) { return f.screen()->availableGeometry().adjusted(0, titlebar, 0, 0); }

// The size of a window that has just been made. Where the room is too small one way, the bar to scroll that way does
// not take from the other.
QSize firstsize(const windowframe& f) {
    const QRect room = roomfor(f);
    const QSize plan = f.designedsize();
    const int bar = f.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize size(plan.width() + (plan.height() > room.height() ? bar : 0),
                     plan.height() + (plan.width() > room.width() ? bar : 0));
    return size.boundedTo(room.size());
}

// ---- beside the main window ----------------------------------------------------------------------------------

// What a window should rather not lie over, and how much it matters by the pixel.
struct obstacle {
    QRect place;
    int weight;
};

QRect placeonscreen(const QWidget& widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }

// The controls of the main window, the boxes over its picture also while they are hidden; the picture itself; and the
// other windows that stand beside it, with the bars that the desktop puts above them.
std::vector<obstacle> obstaclesto(const windowframe& f) {
    constexpr int picture = 4, otherwindow = 1, control = 40;
    std::vector<obstacle> found;
    for (const tessaly::control* c : vistaplan.controls) {
        const bool counts = c->shown ? c->kind != controlkind::frame : c->kind == controlkind::textbox;
        if (counts && widgetof(*c)) found.push_back({placeonscreen(*widgetof(*c)), c == &viewport ? picture : control});
    }
    for (const window* w : allwindows())
        if (const windowframe* other = frameof(*w); other && other != &f && w != &vistaplan && other->isVisible())
            found.push_back({placeonscreen(*other).adjusted(0, -titlebar, 0, 0), otherwindow});
    return found;
}

qint64 hidden(const QRect& place, const std::vector<obstacle>& obstacles) {
    qint64 sum = 0;
    for (const obstacle& o : obstacles) {
        const QRect shared = place & o.place;
        sum += qint64{o.weight} * shared.width() * shared.height();
    }
    return sum;
}

// Of the places where it hides the least, the uppermost, and of these the one farthest to the left.
QRect freestplace(const windowframe& f) {
    constexpr int step = 8;
    const QRect room = roomfor(f);
    const std::vector<obstacle> obstacles = obstaclesto(f);
    QRect best(room.topLeft(), firstsize(f));
    qint64 least = -1;
    for (int top = room.bottom() + 1 - best.height(); top >= room.top(); top -= step)
        for (int left = room.right() + 1 - best.width(); left >= room.left(); left -= step) {
            const QRect place({left, top}, best.size());
            const qint64 cost = hidden(place.adjusted(-edge, -titlebar, edge, edge), obstacles);
            if (least >= 0 && cost > least) continue;
            least = cost;
            best = place;
        }
    return best;
}

}  // namespace

void openincentre(windowframe& f) {
    f.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, firstsize(f), roomfor(f)));
}

void openbesidemain(windowframe& f) {
    f.setGeometry(freestplace(f));
    f.setWindowFlags(Qt::Dialog);  // the kind that desktops keep in front of another
    f.winId();                     // makes the desktop's own window, which is told so
    if (const windowframe* main = frameof(vistaplan)) f.windowHandle()->setTransientParent(main->windowHandle());
}

}  // namespace tessaly

// Places by what the screen and the other windows leave.

#include "windows/qt/windowposition.h"

#include "windows/qt/binding.h"

#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <iterator>

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

// How much lower than the one before each layout window opens: of those that lie behind, a border can be seen.
int lowering(const tessaly::window& w) {
    constexpr int step = 110;
    const window* const layouts[] = {&layoutgirder, &layoutpanels, &layoutroof};
    const auto* const found = std::find(std::begin(layouts), std::end(layouts), &w);
    return found == std::end(layouts) ? 0 : step * static_cast<int>(found - layouts);
}

// At the right of the picture, from its top on, as far as the screen reaches.
QRect besidepicture(const windowframe& f) {
    const QRect room = roomfor(f);
    const QSize size = firstsize(f);
    const QWidget& picture = *widgetof(viewport);
    const QPoint wanted = picture.mapToGlobal(QPoint(picture.width() + edge, lowering(f.of)));
    const QPoint last = QPoint(room.right() + 1 - size.width(), room.bottom() + 1 - size.height());
    return {{std::clamp(wanted.x(), room.left(), last.x()), std::clamp(wanted.y(), room.top(), last.y())}, size};
}

}  // namespace

void openincentre(windowframe& f) {
    f.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, firstsize(f), roomfor(f)));
}

void openmaximised(windowframe& f) {
    f.resize(firstsize(f));  // where there is no desktop to maximise it, and when the user takes the size back
    f.setWindowState(f.windowState() | Qt::WindowMaximized);
}

void openbesidemain(windowframe& f) {
    f.setGeometry(besidepicture(f));
    f.setWindowFlags(Qt::Dialog);  // the kind that desktops keep in front of another
    f.winId();                     // makes the desktop's own window, which is told so
    if (const windowframe* main = frameof(vistaplan)) f.windowHandle()->setTransientParent(main->windowHandle());
}

}  // namespace tessaly

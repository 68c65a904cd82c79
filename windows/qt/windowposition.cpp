// Computes the bounds of a window from those of the screen and of the main window's picture.

#include "windows/qt/windowposition.h"

#include "windows/qt/binding.h"

#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

constexpr int titlebar = 30, border = 4;  // pixels reserved for the title bar and the border of a window

// Returns the part of the screen that is available for the interior of a window.
QRect availablefor(const windowframe& f) { return f.screen()->availableGeometry().adjusted(0, titlebar, 0, 0); }

// Returns the initial size of a window: that of its content, but at most the available size. If the content is too
// high, the window is wider by a scroll bar; if it is too wide, the window is higher by one.
QSize initialsize(const windowframe& f) {
    const QRect available = availablefor(f);
    const QSize designed = f.content()->size();
    const int bar = f.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize size(designed.width() + (designed.height() > available.height() ? bar : 0),
                     designed.height() + (designed.width() > available.width() ? bar : 0));
    return size.boundedTo(available.size());
}

// Returns how far below the top of the picture a window opens, in pixels. Each layout window opens lower than the one
// before, so that the upper edges of those behind it can be seen.
int distancefromtop(const tessaly::window& w) {
    constexpr int increment = 110;
    const window* const layouts[] = {&layoutgirder, &layoutpanels, &layoutroof};
    const auto* const found = std::find(std::begin(layouts), std::end(layouts), &w);
    return found == std::end(layouts) ? 0 : increment * static_cast<int>(found - layouts);
}

// Returns the bounds of a window to the right of the picture, moved left or up if it would extend beyond the screen.
QRect besidepicture(const windowframe& f) {
    const QRect available = availablefor(f);
    const QSize size = initialsize(f);
    const QWidget& picture = *widgetof(viewport);
    const QPoint wanted = picture.mapToGlobal(QPoint(picture.width() + border, distancefromtop(f.definition)));
    const QPoint maximum = QPoint(available.right() + 1 - size.width(), available.bottom() + 1 - size.height());
    return {
        {std::clamp(wanted.x(), available.left(), maximum.x()), std::clamp(wanted.y(), available.top(), maximum.y())},
        size};
}

}  // namespace

void opencentred(windowframe& f) {
    f.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, initialsize(f), availablefor(f)));
}

void openmaximised(windowframe& f) {
    f.resize(initialsize(f));  // its size if no window manager maximises it, and after the user restores it
    f.setWindowState(f.windowState() | Qt::WindowMaximized);
}

void openbesidemain(windowframe& f) {
    f.setGeometry(besidepicture(f));
    f.setWindowFlags(Qt::Dialog);  // desktops show a dialog in front of its parent
    f.winId();                     // creates the native window
    if (const windowframe* main = frameof(vistaplan)) f.windowHandle()->setTransientParent(main->windowHandle());
}

}  // namespace tessaly

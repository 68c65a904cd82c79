// Frame, plan and the user's closing of a window.

#include "windows/qt/face.h"

#include "windows/handlers.h"
#include "windows/qt/binding.h"
#include "windows/qt/button.h"
#include "windows/qt/look.h"
#include "windows/qt/spoken.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QWindow>

namespace tessaly {

namespace {

class planwidget : public QWidget {
  public:
    explicit planwidget(face& itsface) : of(itsface) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!of.decoration) return;
        QPainter painter(this);
        of.decoration(painter);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (!walkbyarrow(*this, {0, 0}, event->key())) QWidget::keyPressEvent(event);
    }

  private:
    face& of;
};

constexpr int titlebar = 30, edge = 4;  // pixels: what a desktop may put above and around a window

// What the screen leaves for a window's interior.
QRect roomfor(const face& f) { return f.screen()->availableGeometry().adjusted(0, titlebar, 0, 0); }

// The size of a window that has just been made. Where the room is too small one way, the bar to scroll that way does
// not take from the other.
QSize firstsize(const face& f) {
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
std::vector<obstacle> obstaclesto(const face& f) {
    constexpr int picture = 4, otherwindow = 1, control = 40;
    std::vector<obstacle> found;
    for (const tessaly::control* c : vistaplan.controls) {
        const bool counts = c->shown ? c->kind != controlkind::frame : c->kind == controlkind::textbox;
        if (counts && widgetof(*c)) found.push_back({placeonscreen(*widgetof(*c)), c == &viewport ? picture : control});
    }
    for (const window* w : allwindows())
        if (const face* other = faceof(*w); other && other != &f && w != &vistaplan && other->isVisible())
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

// Of the places where it hides the least, the one nearest to the upper left.
QRect freestplace(const face& f) {
    constexpr int step = 8;
    const QRect room = roomfor(f);
    const std::vector<obstacle> obstacles = obstaclesto(f);
    QRect best(room.topLeft(), firstsize(f));
    qint64 least = -1;
    for (int left = room.right() + 1 - best.width(); left >= room.left(); left -= step)
        for (int top = room.bottom() + 1 - best.height(); top >= room.top(); top -= step) {
            const QRect place({left, top}, best.size());
            const qint64 cost = hidden(place.adjusted(-edge, -titlebar, edge, edge), obstacles);
            if (least >= 0 && cost > least) continue;
            least = cost;
            best = place;
        }
    return best;
}

}  // namespace

face::face(tessaly::window& itswindow) : of(itswindow) {
    setObjectName(of.name);
    setWindowTitle(of.title);
    setrole(*this, &of == &startform || &of == &vistaplan ? QAccessible::Window : QAccessible::Dialog);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    QPalette own = palette();
    own.setColor(QPalette::Window, screencolour(of.back));
    own.setColor(QPalette::WindowText, inkupon(screencolour(of.back)));
    setPalette(own);
    auto* plan = new planwidget(*this);
    plan->setFixedSize(designedsize());
    plan->setAutoFillBackground(false);
    setWidget(plan);
}

QSize face::designedsize() const { return {inpixels(of.widthtwips), inpixels(of.heighttwips)}; }

void face::closeEvent(QCloseEvent* event) {
    event->ignore();  // whether it goes is the program's to say
    runevent([this] { closewindow(of); });
}

void face::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        runevent([this] { pressescape(of, focusedcontrol(of)); });
    else
        QScrollArea::keyPressEvent(event);
}

void openincentre(face& f) {
    f.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, firstsize(f), roomfor(f)));
}

void openbesidemain(face& f) {
    f.setGeometry(freestplace(f));
    f.setWindowFlags(Qt::Dialog);  // the kind that desktops keep in front of another
    f.winId();                     // makes the desktop's own window, which is told so
    if (const face* main = faceof(vistaplan)) f.windowHandle()->setTransientParent(main->windowHandle());
}

}  // namespace tessaly

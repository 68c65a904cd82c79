// Frame, plan and the user's closing of a window.

#include "windows/qt/face.h"

#include "windows/handlers.h"
#include "windows/qt/binding.h"
#include "windows/qt/look.h"

#include <QCloseEvent>
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

  private:
    face& of;
};

constexpr int titlebar = 30;  // pixels: what a desktop may put above a window

// What the screen leaves for a window's interior.
QRect roomfor(const face& f) { return f.screen()->availableGeometry().adjusted(0, titlebar, 0, 0); }

// The place of a window that has just been made. Where the room is too small one way, the bar to scroll that way does
// not take from the other.
QRect placeof(const face& f, Qt::Alignment where) {
    const QRect room = roomfor(f);
    const QSize plan = f.designedsize();
    const int bar = f.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize size(plan.width() + (plan.height() > room.height() ? bar : 0),
                     plan.height() + (plan.width() > room.width() ? bar : 0));
    return QStyle::alignedRect(Qt::LeftToRight, where, size.boundedTo(room.size()), room);
}

}  // namespace

face::face(tessaly::window& itswindow) : of(itswindow) {
    setObjectName(of.name);
    setWindowTitle(of.title);
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

void openatlowerright(face& f) { f.setGeometry(placeof(f, Qt::AlignRight | Qt::AlignBottom)); }
void openincentre(face& f) { f.setGeometry(placeof(f, Qt::AlignCenter)); }

void stayinfrontof(face& f, const tessaly::window& other) {
    f.setWindowFlags(Qt::Dialog);  // the kind that desktops keep in front of another
    f.winId();                     // makes the desktop's own window, which is told so
    if (const face* main = faceof(other)) f.windowHandle()->setTransientParent(main->windowHandle());
}

}  // namespace tessaly

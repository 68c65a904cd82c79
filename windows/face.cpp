// Frame, plan and the user's closing of a window.

#include "windows/face.h"

#include "windows/binding.h"
#include "windows/handlers.h"
#include "windows/look.h"

#include <QCloseEvent>
#include <QIcon>
#include <QPainter>
#include <QScreen>
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

constexpr int rim = 6;  // pixels: what a desktop may put around a window

}  // namespace

face::face(tessaly::window& itswindow) : of(itswindow) {
    setObjectName(of.name);
    setWindowTitle(of.title);
    setWindowIcon(QIcon(":/pictures/tessaly.svg"));
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

void openatlowerright(face& f) {
    const QRect room = f.screen()->availableGeometry();
    const QSize size = f.designedsize().boundedTo(room.size() - QSize(2 * rim, 2 * rim));
    f.setGeometry(QRect(room.bottomRight() - QPoint(size.width() + rim, size.height() + rim), size));
}

void stayinfrontof(face& f, const tessaly::window& other) {
    f.setWindowFlags(Qt::Dialog);  // the kind that desktops keep in front of another
    f.winId();                     // makes the desktop's own window, which is told so
    if (const face* main = faceof(other)) f.windowHandle()->setTransientParent(main->windowHandle());
}

}  // namespace tessaly

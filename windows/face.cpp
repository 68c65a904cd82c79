// Frame, plan and the user's closing of a window.

#include "windows/face.h"

#include "windows/binding.h"
#include "windows/handlers.h"
#include "windows/look.h"

#include <QCloseEvent>
#include <QIcon>
#include <QPainter>

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

}  // namespace tessaly

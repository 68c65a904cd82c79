// Frame and plan of a window.

#include "windows/qt/windowframe.h"

#include "windows/qt/accessibility.h"
#include "windows/qt/button.h"
#include "windows/qt/style.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>

namespace tessaly {

namespace {

class planwidget : public QWidget {
  public:
    explicit planwidget(windowframe& itsframe) : of(itsframe) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!of.decoration) return;
        QPainter painter(this);
        of.decoration(painter);
    }

    bool focusNextPrevChild(bool next) override {
        QWidget* const from = hasFocus() ? of.tabfrom : nullptr;
        if (!from) return QWidget::focusNextPrevChild(next);
        QWidget* to = from;
        do to = next ? to->nextInFocusChain() : to->previousInFocusChain();
        while (to != from && !(isAncestorOf(to) && to->isVisible() && (to->focusPolicy() & Qt::TabFocus)));
        of.tabfrom = nullptr;
        to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (!walkbyarrow(*this, {0, 0}, event->key())) QWidget::keyPressEvent(event);
    }

  private:
    windowframe& of;
};

}  // namespace

windowframe::windowframe(const tessaly::window& itswindow) : of(itswindow) {
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

QSize windowframe::designedsize() const { return {inpixels(of.widthtwips), inpixels(of.heighttwips)}; }

void windowframe::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && whenactivated) whenactivated();
}

void windowframe::closeEvent(QCloseEvent* event) {
    event->ignore();
    whenclosed();
}

void windowframe::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        whenescaped();
    else
        QScrollArea::keyPressEvent(event);
}

}  // namespace tessaly

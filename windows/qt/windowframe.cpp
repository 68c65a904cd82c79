// The frame of a window, and the plan inside it.

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
    explicit planwidget(windowframe& itsframe) : frame(itsframe) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!frame.decoration) return;
        QPainter painter(this);
        frame.decoration(painter);
    }

    bool focusNextPrevChild(bool next) override {
        QWidget* const from = hasFocus() ? frame.tabfrom : nullptr;
        if (!from) return QWidget::focusNextPrevChild(next);
        QWidget* to = from;
        do to = next ? to->nextInFocusChain() : to->previousInFocusChain();
        while (to != from && !(isAncestorOf(to) && to->isVisible() && (to->focusPolicy() & Qt::TabFocus)));
        frame.tabfrom = nullptr;
        to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (!movefocusbyarrow(*this, {0, 0}, event->key())) QWidget::keyPressEvent(event);
    }

  private:
    windowframe& frame;
};

}  // namespace

windowframe::windowframe(const tessaly::window& itswindow) : source(itswindow) {
    setObjectName(source.name);
    setWindowTitle(source.title);
    setrole(*this, &source == &startform || &source == &vistaplan ? QAccessible::Window : QAccessible::Dialog);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    const QColor background = screencolour(source.background);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, background);
    colours.setColor(QPalette::WindowText, readablecolour(background));
    setPalette(colours);
    auto* plan = new planwidget(*this);
    plan->setFixedSize(designedsize());
    plan->setAutoFillBackground(false);
    setWidget(plan);
}

QSize windowframe::designedsize() const { return {inpixels(source.widthtwips), inpixels(source.heighttwips)}; }

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

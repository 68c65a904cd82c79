// The frame of a window, and the content inside it.

#include "windows/qt/windowframe.h"

#include "windows/qt/accessibility.h"
#include "windows/qt/style.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

namespace tessaly {

namespace {

class contentwidget : public QWidget {
  public:
    explicit contentwidget(windowframe& itsframe) : frame(itsframe) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        if (!frame.paintbackground) return;
        QPainter painter(this);
        frame.paintbackground(painter);
    }

    // The first arrow key focuses a button. From there the button group handles the arrow keys.
    void keyPressEvent(QKeyEvent* event) override {
        const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
        auto* const first = hasFocus() && arrow ? findChild<QPushButton*>() : nullptr;
        if (first)
            first->setFocus(Qt::TabFocusReason);
        else
            QWidget::keyPressEvent(event);
    }

  private:
    windowframe& frame;
};

}  // namespace

windowframe::windowframe(tessaly::window& itsdefinition) : definition(itsdefinition) {
    setObjectName(definition.name);
    setWindowTitle(definition.title);
    setrole(*this, &definition == &startform || &definition == &vistaplan ? QAccessible::Window : QAccessible::Dialog);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    const QColor background = screencolour(definition.background);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, background);
    colours.setColor(QPalette::WindowText, readablecolour(background));
    setPalette(colours);
    auto* content = new contentwidget(*this);
    content->setFixedSize(inpixels(definition.widthtwips), inpixels(definition.heighttwips));
    content->setAutoFillBackground(false);
    setWidget(content);
}

void windowframe::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) onactivation();
}

void windowframe::closeEvent(QCloseEvent* event) {
    event->ignore();  // onclose hides the window
    onclose();
}

void windowframe::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        onescape();
    else
        QScrollArea::keyPressEvent(event);
}

}  // namespace tessaly

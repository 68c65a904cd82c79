// The frame of a window on the screen: a plan of the designed size that holds the controls at their places and can be
// scrolled where the screen is too small. What is drawn behind the controls is the window's own matter.
#pragma once

#include "core/controls.h"

#include <QScrollArea>

#include <functional>

namespace tessaly {

class windowframe : public QScrollArea {
  public:
    explicit windowframe(const tessaly::window& itswindow);

    QWidget* plan() const { return widget(); }
    QSize designedsize() const;

    // The control that lost the focus to the plan when it was hidden: Tab goes on from there.
    QWidget* tabfrom = nullptr;

    // Paints behind the controls, in pixels of the plan.
    std::function<void(QPainter&)> decoration;
    // Shows the state that belongs to no control; called after each event while the window is shown.
    std::function<void()> follow;
    // The first showing: where it stands and how large.
    std::function<void(windowframe&)> firstshowing;

    // The user closes it, or presses Escape in it: whether it goes is the program's to say.
    std::function<void()> whenclosed, whenescaped;
    // It becomes the active window.
    std::function<void()> whenactivated;

    const tessaly::window& of;

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tessaly

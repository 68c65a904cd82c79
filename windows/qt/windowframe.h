// The frame of a window on the screen. It contains the plan, a widget of the designed size that holds the widgets of
// the controls, and scrolls the plan if the screen is too small. Each window sets its decoration and its position
// itself.
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

    // The widget that lost the focus to the plan when the widget was hidden; Tab continues from there. nullptr if there
    // is none.
    QWidget* tabfrom = nullptr;

    // Paints the background of the plan, in plan coordinates; may be empty.
    std::function<void(QPainter&)> decoration;
    // Shows state that is not stored in controls. Called after each event while the window is shown; may be empty.
    std::function<void()> afterevent;
    // Sets size and position before the window is first shown.
    std::function<void(windowframe&)> setfirstposition;

    // Called when the user closes the window, or presses Escape in it; the frame itself stays open.
    std::function<void()> whenclosed, whenescaped;
    // Called when the window becomes the active one.
    std::function<void()> whenactivated;

    const tessaly::window& source;

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tessaly

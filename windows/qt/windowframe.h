// The frame of a window on the screen. Its content, a widget of the designed size, holds the widgets of the controls
// and scrolls if the screen is too small.
#pragma once

#include "core/controls.h"

#include <QScrollArea>

#include <functional>

namespace tessaly {

class windowframe : public QScrollArea {
  public:
    explicit windowframe(tessaly::window& itsdefinition);

    QWidget* content() const { return widget(); }

    // Paints the background of the content, in content coordinates; may be empty.
    std::function<void(QPainter&)> paintbackground;
    // Run when the user returns to the window, closes it, or presses Escape in it.
    std::function<void()> onactivation, onclose, onescape;
    // Updates what depends on files or on state outside the window's controls. Called at the end of each event while
    // the window is shown, before its controls are copied to the widgets; may be empty.
    std::function<void()> refreshcontent;

    tessaly::window& definition;

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tessaly

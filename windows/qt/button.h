// The push buttons of all windows: in the control's colour, with a wrapped caption or a picture.
#pragma once

#include <QPushButton>

namespace tessaly {

// The letters of a caption, and the rectangle in which its wrapped lines are centred.
struct captionlayout {
    QFont font;
    QRect bounds;
    bool fits;
};

// Wraps a caption into lines of similar length that fit into a button of this size, with letters smaller than those of
// font if necessary.
captionlayout layoutcaption(const QString& caption, QSize size, QFont font);

class button : public QPushButton {
  public:
    button(const QColor& itsbackground, QWidget* parent);
    void setchosen(bool on);  // sets whether the button looks pressed even while it is not
    void setmarked(bool on);  // sets whether the button has a mark in the middle

  protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    // Returns the part of the button inside its window: the picture buttons of the help are longer than the window.
    QRect visiblepart() const;
    void paintbackground(QPainter& painter) const;
    void paintcaption(QPainter& painter) const;
    void paintmark(QPainter& painter) const;

    bool lookspressed() const { return chosen || isDown(); }

    QColor background;
    bool chosen = false, marked = false;
};

}  // namespace tessaly

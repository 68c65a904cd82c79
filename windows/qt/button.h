// The push buttons of all windows: raised, in the control's colour, with a wrapped caption or a picture.
#pragma once

#include <QPushButton>
#include <QSvgRenderer>

#include <memory>

namespace tessaly {

// The lines of a caption and the size of their letters.
struct captionlines {
    QStringList lines;
    int pixels;
    bool fits;
};

// Breaks a caption at its blanks into lines of similar length that fit into size, with smaller letters if necessary.
captionlines wrapcaption(const QString& caption, QSize size, bool bold);

// A picture of the program by its name: NAME.png, with NAME@2x.png for screens of higher density, or else NAME.svg.
class picture {
  public:
    explicit picture(const QString& name);
    bool isnull() const { return pixels.isNull() && !drawing.isValid(); }
    QSize size() const;
    // Paints the picture in the middle of a rectangle, as large as fits without changing its proportions.
    void paint(QPainter& painter, const QRectF& into) const;

  private:
    QPixmap scaledto(QSizeF size, qreal ratio) const;

    QPixmap pixels, dense;
    mutable QSvgRenderer drawing;
};

// Moves the focus from a point of a plan to the nearest button in the direction of an arrow key. Returns whether the
// key is an arrow key.
bool movefocusbyarrow(const QWidget& plan, QPoint from, int key);

class button : public QPushButton {
  public:
    button(const QColor& itsbackground, QWidget* parent);
    void setpicture(const QString& name);
    void setchosen(bool on);  // sets whether the button looks pressed all the time
    void setmarked(bool on);  // sets whether the button has a mark in the middle

  protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    // Returns the part of the button that is on the plan: the picture buttons of the help are longer than their window.
    QRect visiblepart() const;
    void paintbackground(QPainter& painter) const;
    void paintcaption(QPainter& painter) const;
    void paintmark(QPainter& painter) const;

    bool lookspressed() const { return chosen || isDown(); }

    QColor background;
    bool chosen = false, marked = false;
    std::unique_ptr<picture> image;
};

}  // namespace tessaly

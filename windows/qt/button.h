// The push buttons of all windows: a raised face in the control's colour with a caption that wraps, or with a picture.
#pragma once

#include <QPushButton>
#include <QSvgRenderer>

#include <memory>

namespace tessaly {

// A caption as it is painted: its lines and the size of their letters.
struct captionlines {
    QStringList lines;
    int pixels;
    bool whole;  // everything fits
};

// Breaks a caption at its blanks into lines of like length that fit into size; takes smaller letters where it must.
captionlines wrapcaption(const QString& caption, QSize size, bool bold);

// The picture of that name among the program's pictures, ".png" (on dense screens "@2x.png" if there) or else ".svg".
class picture {
  public:
    explicit picture(const QString& name);
    bool isnull() const { return pixels.isNull() && !drawing.isValid(); }
    QSize size() const;
    // Paints it into a rectangle, whole, in its own proportions, in the middle.
    void paint(QPainter& painter, const QRectF& into) const;

  private:
    QPixmap scaledto(QSizeF size, qreal ratio) const;

    QPixmap pixels, dense;
    mutable QSvgRenderer drawing;
};

// Takes the focus from a place on a plan to the nearest button in an arrow key's direction, one in line with it before
// others. Whether it was an arrow key.
bool walkbyarrow(const QWidget& plan, QPoint from, int key);

class button : public QPushButton {
  public:
    button(const QColor& itsbackground, QWidget* parent);
    void setpicture(const QString& name);
    void setchosen(bool itis);  // whether it looks pressed all the time
    void setmarked(bool itis);  // with a mark in the middle

  protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    // What of it lies on the plan: the help's picture buttons are longer than their window.
    QRect seen() const;
    void paintface(QPainter& painter) const;
    void paintcaption(QPainter& painter) const;
    void paintmark(QPainter& painter) const;

    bool lookspressed() const { return chosen || isDown(); }

    QColor background;
    bool chosen = false, marked = false;
    std::unique_ptr<picture> shows;
};

}  // namespace tessaly

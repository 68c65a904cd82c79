// The frame of a window on the screen: a plan of the designed size that holds the controls at their places and can be
// scrolled where the screen is too small. What is drawn behind the controls is the window's own matter.
#pragma once

#include "core/controls.h"

#include <QScrollArea>

#include <functional>

namespace tessaly {

class face;

// For the first showing, no larger than the screen: in its middle; or beside the main window, where the window hides
// the least of what it is used with, and in front of it from then on, whichever of the two the user works in.
void openincentre(face& f);
void openbesidemain(face& f);

class face : public QScrollArea {
  public:
    explicit face(tessaly::window& itswindow);

    QWidget* plan() const { return widget(); }
    QSize designedsize() const;

    // Paints behind the controls, in pixels of the plan.
    std::function<void(QPainter&)> decoration;
    // The first showing: where it stands and how large.
    std::function<void(face&)> firstshowing = openbesidemain;

    tessaly::window& of;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

// What each window has of its own, once its controls stand on the plan.
void dressstartform(face& f);
void dressvistaplan(face& f);
void dresslayoutgirder(face& f);
void dresslayoutpanels(face& f);
void dresslayoutroof(face& f);
void dresseasyviews(face& f);

}  // namespace tessaly

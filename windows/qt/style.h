// The look of all windows: one style, one palette and one font of fixed sizes, so that captions fit the places of the
// design grid and neither a dark desktop theme nor a large desktop font changes anything.
#pragma once

#include "core/controls.h"

#include <QApplication>
#include <QColor>
#include <QFont>

namespace tessaly {

constexpr int captionpixels = 11;

// Gives the application its style, palette, font and icon. To be called once, right after its making.
void setlook(QApplication& app);

// The font of captions, in pixels of the design grid.
QFont captionfont(int pixels = captionpixels);

// The fixed-pitch font of the help pages: Fixedsys where there is one, else the best that is installed.
QFont pagefont();

// A colour of the control tables on the screen; black or white, whichever is readable upon it.
QColor screencolour(colour c);
QColor inkupon(const QColor& back);

// Pixels of the design grid: of a control's place, to the nearest, and of a point that is drawn.
constexpr int inpixels(int twips) { return (twips + twipsperpixel / 2) / twipsperpixel; }
inline QPointF pointat(double lefttwips, double toptwips) {
    return {lefttwips / twipsperpixel, toptwips / twipsperpixel};
}

}  // namespace tessaly

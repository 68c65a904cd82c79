// The style of all windows: one palette and fonts of fixed sizes, so that captions fit their controls and neither a
// dark desktop theme nor a large desktop font changes the windows.
#pragma once

#include "core/controls.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QIcon>

namespace tessaly {

constexpr int captionpixels = 11;

// Sets the style, palette, font and icon of the application. Call it once, right after the QApplication was created.
void setstyle();

// Returns the font of captions; pixels of the design grid.
QFont captionfont(int pixels = captionpixels, QFont::Weight weight = QFont::Normal);

// Returns the fixed-pitch font of the help pages: Fixedsys if it is installed, or else another fixed-pitch font.
QFont pagefont();

// Returns a picture of the program by its name: NAME.png, with NAME@2x.png for screens of higher density, or NAME.svg.
QIcon pictureof(const std::string& name);

// Converts a colour of the control tables for Qt; returns black or white, whichever is readable on the background.
QColor screencolour(colour c);
QColor readablecolour(const QColor& background);

// Convert twips to pixels of the design grid: a length, rounded to whole pixels; a point, not rounded.
constexpr int inpixels(int twips) { return (twips + twipsperpixel / 2) / twipsperpixel; }
inline QPointF pointat(double lefttwips, double toptwips) {
    return {lefttwips / twipsperpixel, toptwips / twipsperpixel};
}

}  // namespace tessaly

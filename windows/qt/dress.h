// What each window has of its own, once its controls stand on the plan: its decoration, its keys, its first showing.
#pragma once

#include "windows/qt/face.h"

namespace tessaly {

// Dresses a window by the table of those that have something of their own.
void dresswindow(face& f);

// A file each.
void dressstartform(face& f);
void dressvistaplan(face& f);
void dresslayoutgirder(face& f);
void dresslayoutpanels(face& f);
void dresslayoutroof(face& f);
void dresseasyviews(face& f);

}  // namespace tessaly

// Screen capture: the picture as a bitmap file in bmps, and the view, as the boxes show it, as a record beside it.
#pragma once

#include "core/value.h"

#include <string>

namespace tessaly {

// Opens the dialog on the main window and moves the keyboard focus to the name box, which keeps its text.
void clickscreencapbtn();

// Closes the dialog and empties the name box. Writes no file.
void clickcapescapebtn();

// Appends a record of the nine boxes to the view record, closes the dialog, then saves the bitmap. An existing bitmap
// of that name is replaced.
// reads: capbox, the nine boxes; writes: capname, capsidecar; fails: before any file is written with invalid call for a
// name of fewer than four characters, with file access error for one that contains a slash; then with file not found if
// there is no folder bmps, file already open if channel 1 is in use, file access error if the record or the bitmap
// cannot be written. The dialog stays open unless only the bitmap failed.
void clickscreencapenter();

// Returns a file name without its last four characters, whatever they are. Fails with invalid call if it has fewer.
std::string stemof(const value& name);

}  // namespace tessaly

// Screen capture: the picture is saved as a bitmap file in bmps, and the view in the boxes as a record beside it.
#pragma once

#include "core/value.h"

#include <string>

namespace tessaly {

// Opens the dialog on the main window and moves the keyboard focus to the name box, whose text is unchanged.
void clickscreencapbtn();

// Closes the dialog and empties the name box. Writes no file.
void clickcapescapebtn();

// Appends a record of the nine boxes to the text file of the capture, closes the dialog, then saves the bitmap. An
// existing bitmap of that name is replaced.
// reads: capbox, the nine boxes; writes: capname, capsidecar; fails: before a file is written, invalid call (a name of
// fewer than four characters) and file access error (a name with a slash); then file not found (no folder bmps), file
// already open (channel 1) and file access error (the record or the bitmap cannot be written). If only the bitmap
// cannot be written, the dialog is closed.
void clickscreencapenter();

// Returns a file name without its last four characters, whatever they are. Fails with invalid call if it has fewer.
std::string stemof(const value& name);

}  // namespace tessaly

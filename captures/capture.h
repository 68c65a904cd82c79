// Screen capture: the picture into a bitmap file of bmps, and the view as the boxes show it into a record beside it.
#pragma once

#include "core/value.h"

#include <string>

namespace tessaly {

// Opens the dialog in place; the name box gets the keyboard and keeps what it holds.
void clickscreencapbtn();

// Leaves the dialog; nothing is written.
void clickcapescapebtn();

// Adds a record of the nine boxes to the view record, closes the dialog, then saves the bitmap. Nothing is trapped.
// reads: capbox, the nine boxes; writes: capname, capsidecar; fails: invalid call for a name of fewer than four
// characters (before any file is touched), file errors of the record and of the bitmap.
void clickscreencapenter();

// A file name without its last four characters, whatever they are; fails with invalid call where it has fewer.
std::string stemof(const value& name);

}  // namespace tessaly

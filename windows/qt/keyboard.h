// Drops the repeats of a held key, which would record, replay or delete again and again. They reach only the text in
// boxes, the keys that move the focus or the cursor, and the buttons that repeat. Also determines whether the user
// works with the keyboard or with the mouse.
#pragma once

namespace tessaly {

// Installs the filter. Call it after the QApplication was created.
void filterkeys();

// Returns whether the user's last press was that of a key, not of a mouse button.
bool lastpresswaskey();

}  // namespace tessaly

// Drops repeats of a held key that would click a button, pick an item or run a program key again and again. Repeats
// that type text, move the focus or the cursor, or press a stepping button are not dropped. Also determines whether the
// user works with the keyboard or with the mouse.
#pragma once

namespace tessaly {

// Installs the filter. Call it after the QApplication was created.
void filterkeys();

// Returns whether the user's last press was that of a key, not of a mouse button.
bool lastpresswaskey();

}  // namespace tessaly

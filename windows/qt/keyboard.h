// Drops repeats of a held key that would click a button, pick an item or run a program key again and again. Repeats
// that type text, move the focus or the cursor, or press a stepping button are not dropped. Also determines whether the
// user works with the keyboard or with the mouse.
#pragma once

namespace tessaly {

// Drops these repeats from now on. Call it after the QApplication has been created.
void droprepeats();

// Returns whether the user last pressed a key, not a mouse button.
bool lastpresswaskey();

}  // namespace tessaly

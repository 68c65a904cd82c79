// Drops the repeats of a held key, which would record, replay or delete again and again. They reach only the text in
// boxes, the keys that move the focus or the cursor, and the buttons that repeat.
#pragma once

namespace tessaly {

// Installs the filter. Call it after the QApplication was created.
void filterkeyrepeats();

}  // namespace tessaly

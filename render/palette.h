// Palette files and drawing colours. A palette file has fixed records of 8 bytes (four 16-bit numbers: unused, blue,
// green, red); record k is palette index k.
#pragma once

#include "core/colour.h"
#include "core/value.h"

namespace tessaly {

// Fills the palette indexes 1..236 from the file named by palname. Indexes after the end of a short or missing file
// become black. writes: palred, palgreen, palblue; fails: file not found (the folder pals is missing), file already
// open (channel 1), file access error.
void loadpalette();

// Returns the colour at a palette index, with its components rounded to whole numbers and limited to 255. fails:
// subscript out of range outside 0..256; overflow for a component outside the 16-bit range and invalid call for one
// below 0, both with the location of the palette record.
colour palettecolour(const value& index);

// Returns the colour of backred, backgreen, backblue. fails: as palettecolour, but with the location in the start file;
// also type mismatch for a text.
colour backgroundcolour();

}  // namespace tessaly

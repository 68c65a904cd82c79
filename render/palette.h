// Palette files and drawing colours. A palette file has fixed records of 8 bytes (four 16-bit numbers: unused, blue,
// green, red); record k is palette index k.
#pragma once

#include "core/colour.h"
#include "core/value.h"

namespace tessaly {

// Fills palette indices 1..236 from the file named by palname. Indices after the end of a short or missing file become
// black. writes: palred, palgreen, palblue; fails: file not found (the folder pals is missing), file already open
// (channel 1), file access error.
void loadpalette();

// Returns the colour at a palette index, its components rounded to whole numbers and limited to 255. fails: subscript
// outside 0..256; overflow for a component outside the 16-bit range and invalid call for one below 0, both located by
// the palette's record.
colour palettecolour(const value& index);

// Returns the colour of backred, backgreen, backblue. fails: as palettecolour, also with type mismatch for a text;
// located in the start file.
colour backgroundcolour();

}  // namespace tessaly

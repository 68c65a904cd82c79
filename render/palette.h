// Palette files: fixed records of 8 bytes (16-bit: unused, blue, green, red), record k is palette index k.
#pragma once

namespace tessaly {

// Fills palette indexes 1..236 from the file named by palname. What lies behind the end of a short or missing file is
// zero. writes: palred, palgreen, palblue; fails: file already open (channel 1), file access error.
void loadpalette();

}  // namespace tessaly

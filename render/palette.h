// Palette files: fixed records of 8 bytes (16-bit: unused, blue, green, red), record k is palette index k.
#pragma once

namespace tessaly {

// Fills palette indices 1..236 from the file named by palname. Entries beyond the end of a short or missing file are
// zero. writes: palred, palgreen, palblue; fails: file not found (the folder pals is missing), file already open
// (channel 1), file access error.
void loadpalette();

}  // namespace tessaly

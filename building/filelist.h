// The list of design files, in which a picked file can be deleted, and the button that closes the lists that the file
// readers show first.
#pragma once

namespace tessaly {

// Refreshes and shows designfileslist and the button that closes it.
void clickdisplayfilelistbtn();

// Shows killfilebtn.
void pickdesignfileslist();

// Hides the list and its buttons.
void clickclosefilelistbtn();

// Deletes the picked design file at once and closes the list. writes: firstfilename, which the painter reads; fails:
// file not found, file access error.
void clickkillfilebtn();

// Hides the lists that both file readers show first, their prompts and the button itself.
void clickescapefilelistbtn();

}  // namespace tessaly

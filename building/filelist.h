// The design file list, from which one file at a time can be deleted, and the button that leaves the readers' first
// lists.
#pragma once

namespace tessaly {

void clickdisplayfilelistbtn();  // shows designfileslist, refreshed, and the button that closes it
void pickdesignfileslist();      // shows killfilebtn
void clickclosefilelistbtn();    // hides list and buttons

// Deletes the picked design file at once and closes the list. writes: firstfilename, which the painter reads until
// another name takes its place; fails: file not found, file access error.
void clickkillfilebtn();

void clickescapefilelistbtn();  // hides every list from which a first pick can be made, whichever reader opened it

}  // namespace tessaly

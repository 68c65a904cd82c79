// The list of design files, in which the user can delete a file, and the button that closes the lists of the two file
// readers.
#pragma once

namespace tessaly {

// Refreshes designfileslist, shows it and closefilelistbtn, and hides killfilebtn.
void clickdisplayfilelistbtn();

// Shows killfilebtn.
void pickdesignfileslist();

// Hides designfileslist, killfilebtn and closefilelistbtn.
void clickclosefilelistbtn();

// Deletes the picked design file without asking and hides the list and its buttons. writes: firstfilename, whose first
// letters the painter reads; fails: file not found, file access error.
void clickkillfilebtn();

// Hides the lists of both file readers except those for a second file, selectgirderfile, autohintbox and
// escapefilelistbtn.
void clickescapefilelistbtn();

}  // namespace tessaly

// The list of design files, in which a picked file can be deleted. Also the button that closes the file lists of the
// readers.
#pragma once

namespace tessaly {

// Refreshes and shows designfileslist and the button that closes it.
void clickdisplayfilelistbtn();

// Shows killfilebtn.
void pickdesignfileslist();

// Hides the list and its buttons.
void clickclosefilelistbtn();

// Deletes the picked design file without asking and closes the list. writes: firstfilename, which the painter reads;
// fails: file not found, file access error.
void clickkillfilebtn();

// Hides the lists of both readers, except those for a second file, their prompts and the button itself.
void clickescapefilelistbtn();

}  // namespace tessaly

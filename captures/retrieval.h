// Image retrieval: the list of the files in bmps, in which a file can be deleted, or a capture restored with its view.
#pragma once

namespace tessaly {

// Shows the list with its buttons. Fails with file not found if there is no folder bmps, with file access error if it
// cannot be read.
void clickretrieveimagetbtn();

// Hides the list and its buttons.
void clickclosebmpbtn();

// Deletes the picked file, but not the other file of its capture. The list is not refreshed. A file that cannot be
// deleted is ignored.
// reads: bmplistbox; writes: bmpfile.
void clickdelbmpbtn();

// Restores the capture to which the picked file belongs: sets the view to the first line of its view record, then sets
// its bitmap as the picture. A failure ends the retrieval without a message; the steps before it are not undone. The
// list is closed in any case.
// reads: bmplistbox; writes: bmpfile, bmpstem, bmpext, bmpimage, bmpsidecar, the view state, the nine boxes and their
// copies on easyviews; draws on viewport.
void clickdisplayimagebtn();

}  // namespace tessaly

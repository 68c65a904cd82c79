// Image retrieval: the list of bmps, deleting a file in it, and restoring a capture, its picture and its view.
#pragma once

namespace tessaly {

// Shows the list with its buttons. Fails with file not found if there is no folder bmps, with file access error if it
// cannot be read.
void clickretrieveimagetbtn();

// Hides the list and its buttons.
void clickclosebmpbtn();

// Deletes the picked file, not its partner. The list is not refreshed. A file that cannot be deleted is ignored.
// reads: bmplistbox; writes: bmpfile.
void clickdelbmpbtn();

// Restores the picked capture, by its bitmap or its record: the view in the first line of the record, then the bitmap
// on top. Any failure ends the retrieval without a message, and its earlier steps are not undone; the list closes.
// reads: bmplistbox; writes: bmpfile, bmpstem, bmpext, bmpimage, bmpsidecar, the view state, the nine boxes and their
// copies on easyviews; draws on viewport.
void clickdisplayimagebtn();

}  // namespace tessaly

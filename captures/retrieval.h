// Image retrieval: the list of bmps, deleting a file of it, and bringing a capture back, picture and view.
#pragma once

namespace tessaly {

// Open and close the list. Opening fails with file not found where there is no folder bmps.
void clickretrieveimagetbtn();
void clickclosebmpbtn();

// Deletes the picked file, not its partner; a failure is passed over and the list stays as it is.
void clickdelbmpbtn();

// Brings the picked capture back, by its bitmap or its record: the view of the record's first line, then the bitmap
// over it. Any failure ends it without a word, what was done until then stays; the list closes.
// reads: bmplistbox; writes: bmpfile, bmpstem, bmpext, bmpimage, bmpsidecar, view state, the nine boxes and their
// copies on easyviews; draws on viewport.
void clickdisplayimagebtn();

}  // namespace tessaly

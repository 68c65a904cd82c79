// The view as the boxes of the main window show it, and its copy on easyviews: what the view controls and the image
// retrieval share. Each caller has its own cuts and its own choice of boxes; neither is a slip.
#pragma once

#include "core/controls.h"
#include "core/value.h"

namespace tessaly {

// The text of a box as a value: it stays text until arithmetic meets it, and a report then names the box.
value boxvalue(const control& box);

// The step picked in an increment list; usual where nothing or the blank item is selected.
double pickedstep(const control& list, double usual);

// perpsumx.. = perpx + focusx.. ; fails with type mismatch.
void sumeye();

// perpabsx.. = perprelx + focusx.. ; fails with type mismatch.
void sumabsoluteeye();

// Write boxes, each figure cut to its first n characters: perptxtx.. from x, y, z; focustxtx.. from focusx..;
// verttxt and horiztxt from vertshift and horizshift.
void writeeyeboxes(const value& x, const value& y, const value& z, std::size_t n);
void writefocusboxes(std::size_t n);
void writeshiftboxes(std::size_t n);

// Copies a box's text to its copy on easyviews, which is created, not shown, where it does not exist yet.
void copytoeasyviews(const control& box, control& copy);

// Copies the six boxes of focus and eye to easyviews.
void copyboxestoeasyviews();

}  // namespace tessaly

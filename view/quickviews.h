// Quick view change: the easyviews window with its 30 place buttons, each standing for a fixed place or height of the
// eye or the focus. A click writes figures into boxes and nothing else: the view changes at SET.
#pragma once

namespace tessaly {

// Opens easyviews with the figures of the main window's boxes.
void clickfastchange();

// Hides easyviews; nothing is applied.
void clickeasysetbtn();

// Adds the 30 buttons to easyviews. A click on one writes its figures to its boxes on easyviews, then copies those to
// the main window.
void addquickviewbuttons();

}  // namespace tessaly

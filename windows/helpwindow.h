// The instructions window: opening, the five picture buttons, the way back. No Qt here.
#pragma once

namespace tessaly {

// Opens the help at its start picture.
void clickinstructionsbtn();

// Show the pages of a region of the main window and no others.
void clickelementsbtn();
void clickfilereaderbtn();
void clickdisplaybtn();
void clickviewcontrolbtn();
void clickcapturesbtn();

// Hides the window; its pages stay as they are until it is opened again.
void clickreturntomainbtn();

}  // namespace tessaly

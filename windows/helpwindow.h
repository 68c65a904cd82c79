// The instructions window: its pages, opening, the five picture buttons, the way back. No Qt here.
#pragma once

namespace tessaly {

// Puts the words on the pages, and gives each picture button its procedure: to show the pages of its region of the main
// window and no others.
void definehelp();

// Opens the help at its start picture.
void clickinstructionsbtn();

// Hides the window; its pages stay as they are until it is opened again.
void clickreturntomainbtn();

}  // namespace tessaly

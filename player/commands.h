// The commands of a script. They click, pick and type as a user does, with the same controls and procedures.
//   click BUTTON, pick LIST "ENTRY",
//   type BOX "TEXT", close WINDOW    as with the mouse and the keyboard
//   key F6                           presses a key that acts in any window: F1, F5 or F6
//   start                            clicks startprogrambtn, but the record lists none of the changes
//   edit FILE "TEXT" "NEW"           replaces the first TEXT in a file by NEW, or all of the file if TEXT is empty
//   delete FILE                      deletes a file
//   fails STEP                       plays a step that must end the program with a report, then starts it again
//   mistake FILE "TEXT" "NEW" STEP   edits a file, plays such a step, and restores the file before the new start
//   show                             writes the windows, controls and scalars
//   layout                           writes how the windows look
//   table NAME FROM TO               writes a part of a table
//   say TEXT                         writes a line of text
//   lines FILE                       writes each line drawn from here on to a file; without FILE, stops that
//   picture FILE                     saves the picture of viewport
//   record FILE                      writes to a file what each step from here on changes
#pragma once

#include "player/loggedsurface.h"
#include "player/scriptline.h"

namespace tessaly {

// Plays one line of a script; blank lines and comments do nothing. Throws scripterror for a wrong line and for an
// action that no user could carry out, such as a click on a hidden button. Also throws the failures of the program.
void playline(std::string_view line);

}  // namespace tessaly

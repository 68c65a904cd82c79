// The commands of a script. They click, pick and type as a user does, with the same controls and procedures.
//   click BUTTON, pick LIST "ENTRY", type BOX "TEXT", close WINDOW      as with mouse and keyboard
//   key F6                                   a key that acts in any window: F1, F5 or F6
//   start                                    clicks startprogrambtn; the session's record does not show what it does
//   edit FILE "TEXT" "NEW", delete FILE      replaces the first TEXT, "" for the complete file; deletes
//   fails STEP                               a step that must end the program with a report; then starts it again
//   mistake FILE "TEXT" "NEW" STEP           the same, with the file edited in that way during the step
//   show, layout, table NAME FROM TO         write windows, controls and scalars; the look of windows; part of a table
//   say TEXT                                 writes a line of text
//   lines FILE, picture FILE, record FILE    write to a file: each line drawn from here on; the picture; what each step
//                                            changes
#pragma once

#include "player/loggedsurface.h"
#include "player/scriptline.h"

namespace tessaly {

// Plays one line of a script; blank lines and comments do nothing. Throws scripterror for a wrong line and for an
// action that no user could carry out, such as a click on a hidden button. Also throws the failures of the program.
void playline(std::string_view line);

}  // namespace tessaly

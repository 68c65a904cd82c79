// What the lines of a script do: the same clicks, picks and texts as a user's, over the same controls and procedures.
//   click BUTTON, pick LIST "ENTRY", type BOX "TEXT", close WINDOW      as by mouse and keyboard
//   key F6                                   a key that acts from any window: F1, F5 or F6
//   edit FILE "TEXT" "OTHER", delete FILE    in an editor or a file manager; the empty TEXT is the whole file
//   fails LINE                               a line that ends the program with a report; it is started anew then
//   show, layout, table NAME FROM TO         windows, controls and figures; how they are laid out; a part of a table
//   say TEXT                                 a line of text
//   lines FILE, picture FILE, record FILE    each line drawn from here on; the picture; what each step changes
#pragma once

#include "player/loggedsurface.h"
#include "player/scriptline.h"

namespace tessaly {

// The picture that the commands draw on, log and save, and the progress strip; viewportsurface and progresssurface are
// set to them.
extern loggedsurface playedsurface, playedstrip;

// Obeys one line of a script; blank lines and comments do nothing. Throws scripterror for a line that no user could
// act out, such as a click on a hidden button; failures of the program pass through.
void obeyline(std::string_view line);

}  // namespace tessaly

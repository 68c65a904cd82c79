// What the lines of a script do: the same clicks, picks and texts as a user's, over the same controls and procedures.
#pragma once

#include "tools/play_line.h"
#include "tools/play_surface.h"

namespace tessaly {

// The picture that the commands draw on, log and save, and the progress strip; viewportsurface and progresssurface are
// set to them.
extern loggedsurface playedsurface, playedstrip;

// Obeys one line of a script; blank lines and comments do nothing. Throws scripterror for a line that no user could
// act out, such as a click on a hidden button; failures of the program pass through.
void obeyline(std::string_view line);

}  // namespace tessaly

// The text of the instructions window. The pages are laid out with blanks and ruled lines for a fixed-pitch font, in
// ASCII with '\n' between lines.
#pragma once

#include "core/controls.h"

namespace tessaly {

struct helppage {
    control& page;
    const char* text;
};
extern const helppage helppages[8];

}  // namespace tessaly

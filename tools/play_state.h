// The state of the program as lines of text: its windows, controls and figures, as "show" writes them and as a
// session's record compares them from step to step.
#pragma once

#include <string>
#include <vector>

namespace tessaly {

struct stateline {
    std::string name;        // "window vistaplan", "control floor", "value mag"
    std::string visibility;  // " shown" or " hidden"; "" of a figure
    std::string text;        // " \"1\"" of a control, " 0.56" of a figure
};

// Windows, controls and reported scalars, each in the order of its table.
std::vector<stateline> programstate();

}  // namespace tessaly

// The positions of a plan that are already built: those whose element is in the design file that a click would be
// recorded in. Only the file decides; no table or scalar is changed.
#pragma once

#include "core/controls.h"

#include <string>
#include <vector>

namespace tessaly {

struct builtelements {
    std::string file;        // bare name of the design file
    std::vector<int> times;  // indexed by element number: how many complete records of that position the file has

    int timesof(const control& positionbutton) const {
        return times[static_cast<std::size_t>(positionbutton.elementnumber)];
    }
};

// Returns the built elements of the layout window's kind on the floor shown in the floor box. A position is identified
// by kind, for girders also by code, and by fields 7, 8 and 9, compared as numbers. A file that cannot be read counts
// as having none. The result is cached until the size or time of the file changes; the reference is valid until the
// next call for this plan.
const builtelements& builton(const window& plan);

// "postx0y16, element 1: 2 times in girders1.txt": the tooltip of a button whose element is already built.
std::string builttooltip(const control& positionbutton, const builtelements& built);

}  // namespace tessaly

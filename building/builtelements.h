// The positions of a plan that are already built: those whose element is in the design file that a click would be
// recorded in. Only the file decides; no table or scalar is changed.
#pragma once

#include "core/controls.h"

#include <string>
#include <vector>

namespace tessaly {

struct builtelements {
    std::string file;         // bare name of the design file
    std::vector<int> counts;  // the file's complete records of each position, indexed by element number

    int countof(const control& positionbutton) const {
        return counts[static_cast<std::size_t>(positionbutton.elementnumber)];
    }
};

// Returns the built elements of the layout window's kind on the floor shown in the floor box. A position is identified
// by kind, for girders also by code, and by fields 7, 8 and 9, compared as numbers. A file that cannot be read counts
// as empty. The result is cached until the size or time of the file changes; the reference is valid until the next call
// for this plan.
const builtelements& builtelementsof(const window& plan);

// Returns what the tooltip of a position button ends with: ", built 2 times in girders1.txt", or "" if its element is
// not built.
std::string builtsuffix(const control& positionbutton, const builtelements& built);

}  // namespace tessaly

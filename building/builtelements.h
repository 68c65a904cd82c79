// Determines which positions of a plan are already built: those whose element is in the design file to which a click on
// the plan would be recorded. No table or scalar is changed.
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

// Returns the built elements of a layout window on the floor in the floor box. The kind of a record and its fields 7, 8
// and 9 identify its position, for girders also field 5; numbers are compared, not texts. A file that cannot be read
// counts as empty. The result is cached until the size or time of the file changes; the reference is valid until the
// next call for this plan.
const builtelements& builtelementsof(const window& plan);

// Returns the end of a position button's tooltip: ", built 2 times in girders1.txt", or "" if its element is not built.
std::string builtsuffix(const control& positionbutton, const builtelements& built);

}  // namespace tessaly

// What is built already: the positions of a plan whose element is in the design file that a recorded click would go to.
// The file is the truth; no table and no scalar is changed.
#pragma once

#include "core/controls.h"

#include <string>
#include <vector>

namespace tessaly {

struct builtelements {
    std::string file;        // bare name of the design file
    std::vector<int> times;  // by element number: complete records of that position in the file

    int timesof(const control& positionbutton) const {
        return times[static_cast<std::size_t>(positionbutton.elementnumber)];
    }
};

// The elements of a layout window's kind on the floor of the floor box. A position is identified by kind, for girders
// also by code, and by fields 7, 8 and 9, compared as numbers. A file that cannot be read has none. What a file of the
// same size and time gave is remembered: the reference holds until the next call for this plan.
const builtelements& builton(const window& plan);

// "postx0y16, element 1: 2 times in girders1.txt": the button's tooltip while its element is built.
std::string builttooltip(const control& positionbutton, const builtelements& built);

}  // namespace tessaly

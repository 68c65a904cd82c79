// The drawn lines of a view change, taken apart at the wipes of replot.
#pragma once

#include "tests/session.h"

#include <algorithm>

namespace tessaly {

// How often the picture was wiped: a wipe of replot begins with the row at 2.
inline long wipes(const std::vector<drawnline>& lines) {
    return std::count_if(lines.begin(), lines.end(),
                         [](const drawnline& l) { return l.x1 == 2 && l.x2 == 1450 && l.y1 == 2; });
}

// What was drawn after the last wipe, whichever it was.
inline std::vector<drawnline> lastpicture(const std::vector<drawnline>& lines) {
    const auto last = std::find_if(lines.rbegin(), lines.rend(), [](const drawnline& l) { return l.x2 == 1450; });
    return {last.base(), lines.end()};
}

}  // namespace tessaly

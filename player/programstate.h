// The state of the program as lines of text: its windows, controls and figures, as "show" writes them and as a
// session's record compares them from step to step, and its tables.
#pragma once

#include "player/checksum.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

struct stateline {
    std::string name;        // "window vistaplan", "control floor", "value mag"
    std::string visibility;  // " shown" or " hidden"; "" of a figure
    std::string text;        // " \"1\"" of a control, " 0.56" of a figure
};

// Windows, controls and reported scalars, each in the order of its table.
std::vector<stateline> programstate();

// The windows' titles, sizes and colours; of each control its place in twips, colour, element, tooltip and spoken name.
std::vector<std::string> programlayout();

// A table of the world, and the checksum of its elements, in which 0 and -0 count as one.
struct tablesum {
    std::string_view name;
    checksum sum;
    bool operator==(const tablesum&) const = default;
};
std::vector<tablesum> tablesums();

// The elements from..to of a table, each behind a blank; nothing where there is no such table or part of one.
std::optional<std::string> tabletext(std::string_view name, std::size_t from, std::size_t to);

}  // namespace tessaly

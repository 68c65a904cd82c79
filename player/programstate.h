// The state of the program as text: windows, controls and scalars, as "show" writes them and as the record of a
// session compares them from step to step.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

class value;

struct stateitem {
    std::string_view kind;  // "window", "control" or "value"
    std::string name;
    std::string_view visibility;  // "shown" or "hidden"; "" for a value
    std::string text;             // "\"1\"" for a control, "0.56" for a value; "" for a window
};

// Returns windows, controls and recorded scalars, each in the order of its table. Every call after startprogram returns
// items with the same names in the same order.
std::vector<stateitem> programstate();

// Returns a value as the state shows it: "empty", the shortest text of its number, or its text in quotes.
std::string statetext(const value& v);

// Returns a line for each window and control: its name, title or text, bounds in twips, colour, whether it is hidden,
// element number, tooltip, accessible name and items, as far as it has them. Of each button family, only the first and
// the last button are listed, from which the others follow.
std::vector<std::string> programlayout();

}  // namespace tessaly

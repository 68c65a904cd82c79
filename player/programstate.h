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

// Returns windows, controls and reported scalars, each in the order of its table. Every
// call after startprogram returns the same items.
std::vector<stateitem> programstate();

// Returns a value as the state shows it: "empty", the shortest text of its number, or its text in quotes.
std::string statetext(const value& v);

// Returns a line for each window and control, with its title or text, bounds in twips and colour, and if it has them:
// "hidden", element number, tooltip, accessible name, items. Only the first and the last button of a button family are
// listed; the others follow from them.
std::vector<std::string> programlayout();

}  // namespace tessaly

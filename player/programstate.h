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

// Returns windows, controls and reported scalars, each in the order of its table. The items are the same at each call
// as long as the program runs.
std::vector<stateitem> programstate();

// A value as the state shows it: empty, its shortest text, or its text in quotes.
std::string statetext(const value& v);

// How the windows look before they are used, a line for each window and control: its title or text, bounds in twips,
// colour, and what else it has: "hidden", element number, tooltip, accessible name, items. Of the position buttons of
// one family only the first and the last are listed; the others follow from them.
std::vector<std::string> programlayout();

}  // namespace tessaly

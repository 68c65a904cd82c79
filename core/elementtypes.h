// The types of building elements, with one table each for panel types, snip types and classes of design files.
// Names, codes and buttons of elements are derived from these rows and are written nowhere else.
#pragma once

#include "core/controls.h"
#include "core/world.h"

#include <algorithm>
#include <string_view>

namespace tessaly {

// ---- snip types: which ends of a panel are cut -------------------------------------------------
struct sniptype {
    const char* text;       // item of panelsnipper
    const control* button;  // sets that item; nullptr: the item has no button
    const char* nameinfix;  // follows the prefix in names of element files; four letters, so "righ" is deliberate
};
inline constexpr sniptype sniptypes[] = {
    // clang-format off
    {"Full panel",      nullptr,      "full"},
    {"snip left side",  &snipleftbtn, "left"},
    {"snip right side", &sniprighbtn, "righ"},
    {"snip both sides", &snipbothbtn, "both"},
    // clang-format on
};

// ---- panel types -------------------------------------------------------------------------------
struct paneltype {
    const control* button;
    const char* prefix;               // of the names of element files
    int codes[std::size(sniptypes)];  // in design records, by snip type
};
inline constexpr paneltype paneltypes[] = {
    // clang-format off
    {&orange1btn, "st-panels-1or-",   { 1,  2,  3, 31}},
    {&orange2btn, "st-panels-2or-",   { 4,  5,  6, 32}},
    {&orange3btn, "st-panels-3or-",   { 7,  8,  9, 33}},
    {&yellow1btn, "st-panels-1yel-",  {10, 11, 12, 34}},
    {&yellow2btn, "st-panels-2yel-",  {13, 14, 15, 35}},
    {&yellow3btn, "st-panels-3yel-",  {16, 17, 18, 36}},
    {&door2btn,   "st-panels-2door-", {19, 20, 21, 37}},
    {&door4btn,   "st-panels-4door-", {22, 23, 24, 38}},
    // clang-format on
};
inline constexpr const paneltype& twodoorpanel = paneltypes[6];
static_assert(twodoorpanel.button == &door2btn);

// ---- classes of design files -------------------------------------------------------------------
struct fileclass {
    const char* kind;              // elementkind of its records
    std::string_view stem;         // of the file names, before the floor's digit
    value& code;                   // code of the record being replayed
    recordtable &numbers, &codes;  // of all records
    recordtable* trailers;         // nullptr: trailers are not stored

    // The letters that select the class; the other letters of a name can be anything.
    constexpr std::string_view firstletters() const { return stem.substr(0, 4); }
};
inline constexpr fileclass fileclasses[] = {
    // clang-format off
    {"girder", "girders", girdercode, rdgirdernumber, rdgirdercode, &rdtrailer},
    {"panel",  "panels",  panelcode,  rdpanelnumber,  rdpanelcode,  &rdtrailer},
    {"roof",   "roofs",   roofcode,   rdroofnumber,   rdroofcode,   nullptr},
    // clang-format on
};
inline constexpr const fileclass &girderfiles = fileclasses[0], &panelfiles = fileclasses[1],
                                 &rooffiles = fileclasses[2];

// Returns the class of a design file by the first letters of its name, nullptr if no class has them.
inline const fileclass* classofname(std::string_view name) {
    const auto found = std::find_if(std::begin(fileclasses), std::end(fileclasses),
                                    [name](const fileclass& c) { return name.starts_with(c.firstletters()); });
    return found == std::end(fileclasses) ? nullptr : found;
}

}  // namespace tessaly

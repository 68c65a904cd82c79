// The record of a played session: under each step of the script what it changed, a line each, so that a change of the
// program shows as a difference that a person can judge.
//   click postx0y16
//     control capbox shown                       a window that was opened, a control that came into view
//     control perptxtx "1849.9"                  a text, an item or a figure that is another than before
//     tables 5d1f3c0e7a9b2846 basex basey        those that changed, and the checksum of all tables
//     focus capbox                               where the keyboard is wanted
//     lines viewport 24 8d3e0c5b9a1f2e47         how many were drawn, and their checksum
//     file designs/girders1.txt gained "..."     what a file of the working folder became
//     failure ...                                the report of a step that ended the program; what it left in the
//                                                tables and windows is gone with it, and not told
#pragma once

#include <string>
#include <string_view>

namespace tessaly {

// From here on each step is recorded in this file; false where it cannot be written.
bool startrecord(const std::string& path);

// Writes a line under the step that was played last, as it is given; nothing where no record was begun.
void recordnote(std::string_view line);

// Writes what a step just played changed: one of the program; one outside of it, in an editor; one that ended it, of
// which lines, files and the report are left. Nothing where no record was begun; false where the disk does not take it.
bool recordstep(std::string_view step);
bool recordoutside(std::string_view step);
bool recordfailure(std::string_view step, std::string_view report);

// The program was started anew: what changes from here on is told against that.
void recordrestart();

}  // namespace tessaly

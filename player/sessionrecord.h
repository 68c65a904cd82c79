// The record of a played session: under each step of the script, a line for each kind of change that it made, so that a
// change of the program shows as a difference that a person can judge.
//   click postx0y16
//     shown capbox, screencapenter               windows that were opened, controls that came into view
//     hidden floorlist                           the same the other way round
//     texts perptxtx "1849.9", floor "2"         texts of boxes and captions, picked items; not what the step itself
//     says values perpx 1849.9, focusz "280"          scalars; what is in quotes is still text tables plane 88ab3e10,
//     points 1c9d04fe     groups of tables, and the checksum of the elements that changed focus capbox the control that
//     gets the keyboard lines viewport 24 8d3e0c5b, strip 3 1f2e   lines drawn, with their checksum picture viewport
//     bmps/view.bmp             the picture set as the background of a surface file designs/girders1.txt gained "..."
//     what happened to a file of the working folder, a line for each failure ...                                the
//     report of a step that ended the program. Its lines and files are
//                                                recorded, its tables and windows are not: they are gone
#pragma once

#include <string>
#include <string_view>

namespace tessaly {

// Starts recording each step in this file. Returns false if it cannot be written.
bool startrecord(const std::string& path);

// The following do nothing if no record was started, and return false if the record could not be written.

// Writes a line under the step played last, as it is given.
bool recordnote(std::string_view line);

// Write a step: with what it changed; without that; with the lines, files and report of one that ended the program.
bool recordstep(std::string_view step);
bool recordunseen(std::string_view step);
bool recordfailure(std::string_view step, std::string_view report);

// Compares the next step with the present state. For a program that was started again.
void recordrestart();

}  // namespace tessaly

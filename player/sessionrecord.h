// The record of a played session. Under each step of the script it has a line for each kind of change that the step
// made, so that a person can judge how a changed program differs:
//   click postx0y16
//     shown capbox, screencapenter              windows that were opened, controls that were shown
//     hidden floorlist                          windows that were closed, controls that were hidden
//     texts perptxtx "1849.9", floor "2"        texts of boxes and captions, picked items; not those that the step sets
//     values perpx 1849.9, focusz "280"         scalars; a value in quotes is a text
//     tables plane 88ab3e10, points 1c9d04fe    groups of tables, with the checksum of the elements that changed
//     focus capbox                              the control that gets the keyboard
//     lines viewport 24 8d3e0c5b, strip 3 1f2e  the number of lines drawn, with their checksum
//     picture viewport bmps/view.bmp            the picture set as the background of a surface
//     file designs/girders1.txt gained "..."    what happened to a file of the working folder
//     failure ...                               the report of a step that ended the program. Of such a step, lines and
//                                               files are recorded, but not tables and windows
#pragma once

#include <string>
#include <string_view>

namespace tessaly {

// Starts recording each step in this file. Returns false if it cannot be written.
bool startrecord(const std::string& path);

// The following do nothing if no record was started, and return false if the record could not be written.

// Writes a line under the step played last.
bool recordnote(std::string_view line);

// Write a step: recordstep with its changes, recordwithoutchanges without them, recordfailure with the lines, files and
// report of a step that ended the program.
bool recordstep(std::string_view step);
bool recordwithoutchanges(std::string_view step);
bool recordfailure(std::string_view step, std::string_view report);

// Makes the current state the one with which the next step is compared. Call it after restarting the program.
void recordrestart();

}  // namespace tessaly

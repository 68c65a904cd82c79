// Design files, in which a building is stored: a record of eleven fields per click, in the order of the clicks.
#pragma once

#include "core/elementtypes.h"
#include "core/textfiles.h"

#include <string>

namespace tessaly {

// Returns "designs\" and the name.
std::string designpath(const value& name);

// Appends the record of a click to the design file of its class and floor, on channel 1. number, x, y: constants of the
// clicked button. reads: elementkind, rotx, rotz, placex, placey, facecode, floorname; fails: file already open,
// file access error, file not found (the folder is missing).
void recordelement(const fileclass& files, int number, int x, int y, const value& code);

// Returns the bare name of the file in which a click on a floor records an element of a class.
std::string recordfile(const fileclass& files, const value& onfloor);

// Sets placemode and datafile from the kind and the code of a record. For a kind other than "girder", "panel" and
// "roof", and for a girder with an unknown code, both are unchanged. For a panel with an unknown code, only datafile is
// unchanged.
void elementfileforcode(const value& kind, const value& code);

// Fails with invalid call because the kind and code of a record select no element file. record: its location in the
// file.
[[noreturn]] void elementfilefailure(const value& kind, const value& code, const textinput& in, fieldlocation record);

// Returns the floor digit in a design file's name, 0 for floor 10: the eighth character of a name that starts with
// "gird", the seventh after "pane", the sixth after "roof", or the last character of a shorter name. Returns -1 if the
// name starts with other letters or that character is not a digit.
int floordigit(const std::string& name);

// A design file to replay.
struct replayfile {
    std::string name;
    int digit;  // floordigit(name), except that wholebuilding sets 0 for the files that clicks on floor 10 write
};

// Returns the file picked in a list.
replayfile pickedfile(const control& filelist);

// Sets floornum, floorname and placez from the digit of a file and returns the class of the file. fails: type mismatch
// if the file has no digit.
const fileclass& floorfromname(const replayfile& file);

}  // namespace tessaly

// Design files: how a building is stored, one record of eleven fields per click, in the order of the clicks.
#pragma once

#include "core/elementtypes.h"
#include "core/textfiles.h"

#include <string>

namespace tessaly {

// Appends the record of a click to the design file of its class and floor, on channel 1. number, x, y, code: constants
// of the clicked button. reads: elementkind, rotx, rotz, placex, placey, facecode, floorname; fails: file already open,
// file access error, file not found (the folder is missing).
void recordelement(const fileclass& in, int number, int x, int y, const value& code);

// Returns the bare name of the file in which a click on a floor records an element of a class.
std::string recordfile(const fileclass& in, const value& floorsname);

// Sets placemode and datafile from the kind and the code of a record. A kind other than "girder", "panel" and "roof"
// changes neither; a code that is not in the tables leaves a panel's datafile and both values of a girder unchanged.
void elementfileforcode(const value& kind, const value& code);

// Returns the floor digit in a design file's name, 0 for floor 10: the character after "girders", "panels" or "roofs",
// of which only the first four letters need to be there. -1 if the name has another beginning or no digit.
int floordigit(const std::string& name);

// A design file to replay, and the name that determines its floor: its own, except for three files of wholebuilding.
struct replayfile {
    std::string name, floorby;
};

// Returns the file picked in a list.
replayfile pickedfile(const control& filelist);

// Fails with invalid call: a record's kind and code determine no element file. record: its location in the file.
[[noreturn]] void noelementfile(const value& kind, const value& code, const textinput& in, fieldlocation record);

// Sets floornum, floorname and placez from the floor digit of a name and returns the class of the file. fails: type
// mismatch if the name has no floor digit.
const fileclass& floorfromname(const std::string& name);

}  // namespace tessaly

// Design files: the lasting form of a building, one record of eleven fields a click, in the order of the clicks.
#pragma once

#include "core/textfiles.h"
#include "core/value.h"

#include <string>

namespace tessaly {

struct control;

// Appends the record of a click to "designs\" + family + floorname + ".txt" on channel 1. number, x, y, code: constants
// of the clicked button. reads: elementkind, rotx, rotz, placex, placey, facecode, floorname; fails: file already open,
// file access error, file not found (folder).
void recordelement(const char* family, int number, int x, int y, const value& code);

// The bare name of the file that a click records in: the family's word and the floor.
std::string recordfile(const char* family, const value& floorsname);

// The code of a panel's prefix and part ("full", "left", "righ", "both"); 0 for a pair that is not in the table.
int panelcodefor(const std::string& prefix, const std::string& part);

// Turns a record's kind and code back into placemode and datafile; a kind other than "girder", "panel" and "roof", or a
// code outside the table, leaves what it cannot tell as it was.
void elementfileforcode(const value& kind, const value& code);

// The floor digit in a design file's name, 0 for floor 10: the character after "girders", "panels" or "roofs" in a
// standard name. -1 for a name that the readers refuse.
int floordigit(const std::string& name);

// A design file to replay, and the name that gives its floor: its own, but for three files of wholebuilding.
struct replayfile {
    std::string name, floorby;
};
replayfile pickedfile(const control& filelist);

// Fails with invalid call: a record's kind and code determine no element file. record: its location in the file.
[[noreturn]] void noelementfile(const value& kind, const value& code, const textinput& in, fieldlocation record);

// Sets floornum, floorname and placez from a design file's name. Fails with type mismatch if it has no floor digit.
void floorfromname(const std::string& name);

}  // namespace tessaly

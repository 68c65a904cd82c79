// The field reader: files are read field by field, and it makes no difference how fields are spread over lines: a row
// may be broken after a comma. A comma or a line end closes a field, blanks before it are skipped, double quotes
// delimit a text, a number also ends at a blank and takes one separator with it. In design and view records, which are
// lines, a comma at the end of a line has an empty field behind it. Reading past the end fails with input past end of
// file. what: the field's role, for reports ("x of a STANDARD: row").
#pragma once

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"

#include <string>
#include <string_view>

namespace tessaly {

// A field as a value: a number if it reads as one, otherwise the text; empty between two separators. Blank lines
// before it are skipped. A quoted field is a text always.
value readvalue(textinput& in, const char* what);

// A field of a design record: as readvalue, but a blank line is one empty field.
value readrecordfield(textinput& in, const char* what);

// A field as a label: a signed 16-bit whole number, halves to the even one; a text that is no number is 0. Blank lines
// before it are skipped. Fails with overflow outside -32768..32767.
int readlabel(textinput& in, const char* what);

// A field as a text, to the comma or the line end, trailing blanks included. It points into the file's bytes: do not
// use it after the file is closed.
std::string_view readtextfield(textinput& in, const char* what);

// A text field of a design record or view record.
std::string_view readrecordtext(textinput& in, const char* what);

// Reads text fields until one equals key exactly.
void findkey(textinput& in, const char* key);

// Skips blanks, blank lines and the line end of a broken row; returns the location of the field that follows.
fieldlocation nextfield(textinput& in);

// Runs step with a row of a section. If a number of the row is a bad subscript, adds the row's location.
template <class procedure>
void locaterow(const textinput& in, fieldlocation row, std::string_view section, procedure step) {
    locatesubscript([&] { return in.location(row) + " (" + std::string(section) + ")"; }, step);
}

}  // namespace tessaly

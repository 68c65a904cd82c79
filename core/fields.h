// The field reader reads files field by field; a row may continue on the next line after a comma. A comma or a line end
// ends a field, blanks before it are skipped, and double quotes delimit a text. A number also ends at a blank; a
// separator that follows the blank is skipped. In design and view records a comma at the end of a line is followed by
// an empty field. Reading past the end fails with input past end of file. what: the role of the field, for reports ("x
// of a STANDARD: row").
#pragma once

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"

#include <string>
#include <string_view>

namespace tessaly {

// Reads a field as a value: a number if possible, otherwise a text; empty between two separators. A quoted field is
// always a text. Skips blank lines before it.
value readvalue(textinput& in, const char* what);

// Reads a field of a design record: like readvalue, except that a blank line is an empty field.
value readrecordfield(textinput& in, const char* what);

// Reads a label: a 16-bit whole number, rounded half to even; 0 for a text that is not a number. Skips blank
// lines before it. Fails with overflow outside -32768..32767.
int readwholenumber(textinput& in, const char* what);

// Reads a field as a text up to the comma or line end, including trailing blanks. The result points into the bytes of
// the file and is valid until the file is closed.
std::string_view readtextfield(textinput& in, const char* what);

// Reads a text field of a design or view record.
std::string_view readrecordtext(textinput& in, const char* what);

// Reads text fields until one equals key exactly. Fails with input past end of file if none does.
void findkey(textinput& in, const char* key);

// Skips blanks, blank lines and the line end inside a row that continues on the next line; returns the location of the
// field that follows.
fieldlocation skiptofield(textinput& in);

// Runs step, which works on a row of a section. If step fails because a number of the row is a bad subscript, adds the
// row's location.
template <class procedure>
void withrowlocation(const textinput& in, fieldlocation row, std::string_view section, procedure step) {
    withsubscriptlocation([&] { return in.location(row) + " (" + std::string(section) + ")"; }, step);
}

}  // namespace tessaly

// The field reader reads files field by field. A comma or a line end ends a field, blanks before a field are skipped,
// and double quotes delimit a text. A number also ends at a blank; a separator after that blank is skipped. A row may
// continue on the next line after a comma, except in design and view records: there an empty field follows the comma.
// All readers fail with input past end of file if no field is left. role: the role of the field, for reports, such as
// "x of a STANDARD: row".
#pragma once

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"

#include <string>
#include <string_view>

namespace tessaly {

// Reads a field as a value: a number if possible, otherwise a text; empty between two separators. A quoted field is
// always a text. Skips blank lines before the field.
value readvalue(textinput& in, const char* role);

// Reads a field of a design record: like readvalue, except that a blank line is an empty field.
value readrecordfield(textinput& in, const char* role);

// Reads a number and rounds it to the nearest whole number, halves to even; 0 for a text that is not a number. Skips
// blank lines before the field. Fails with overflow outside the 16-bit range -32768..32767.
int readwholenumber(textinput& in, const char* role);

// Reads a field as a text: up to the comma or line end, with blanks at its end. The result points into the bytes of the
// file and is valid until the file is closed.
std::string_view readtextfield(textinput& in, const char* role);

// Reads a field of a design or view record as a text, like readtextfield.
std::string_view readrecordtext(textinput& in, const char* role);

// Reads text fields until one equals key exactly. Fails with input past end of file if none does.
void findkey(textinput& in, const char* key);

// Skips blanks, blank lines and the line end after the comma of a row that continues on the next line. Returns the
// location of the field that follows.
fieldlocation skiptofield(textinput& in);

// Runs step, which works on a row of a section. If step fails because a number of the row is a bad subscript, adds the
// row's location.
template <class procedure>
void withrowlocation(const textinput& in, fieldlocation row, std::string_view section, procedure step) {
    withsubscriptlocation([&] { return in.location(row) + " (" + std::string(section) + ")"; }, step);
}

}  // namespace tessaly

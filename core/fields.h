// The field reader: files are read field by field, and it makes no difference how fields are spread over lines: a row
// may be broken after a comma. A comma or a line end closes a field, blanks before it are skipped, double quotes
// delimit a text, a number also ends at a blank and takes one separator with it. In design and view records, which are
// lines, a comma at the end of a line has an empty field behind it. Reading past the end fails with input past end of
// file. what: the field's role, for reports ("x of a STANDARD: row").
#pragma once

#include "core/channels.h"
#include "core/failure.h"
#include "core/value.h"

#include <string>
#include <string_view>

namespace tessaly {

// A field as a value: a number if it reads as one, otherwise the text; empty between two separators. Blank lines
// before it are skipped. A quoted field is a text always.
value readvalue(int channel, const char* what);

// A field of a design record: as readvalue, but a blank line is one empty field.
value readrecordfield(int channel, const char* what);

// A field as a label: a signed 16-bit whole number, halves to the even one; a text that is no number is 0. Blank lines
// before it are skipped. Fails with overflow outside -32768..32767.
int readlabel(int channel, const char* what);

// A field as a text, to the comma or the line end, trailing blanks included. It stands in the file's bytes: use it
// before the channel is closed.
std::string_view readtextfield(int channel, const char* what);

// A text field of a design record or view record.
std::string_view readrecordtext(int channel, const char* what);

// Reads text fields until one equals key exactly.
void findkey(int channel, const char* key);

// Moves over blanks, blank lines and the line end of a broken row to where the next figure begins.
void skiptofigure(int channel);

// Where a figure of a section stands, for reports: that with so many others between it and its key, with the key behind
// it. The file is read again for it; only its name where it does not go as far any more.
std::string figureplace(const std::string& path, const std::string& key, int skipped);

// Runs step with a row of a section: an index outside a table is told with the place at which the row began.
template <class procedure>
void tellrow(int channel, int line, int field, std::string_view section, procedure step) {
    locatesubscript([&] { return channelinput(channel).location(line, field) + " (" + std::string(section) + ")"; },
                    step);
}

}  // namespace tessaly

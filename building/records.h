// Records: lines of fields, as design files and a replay's temporary files hold them, and the one table of the
// recordcolumns of a design record. Where a reader differs from the other it says so by its recordcolumns.
#pragma once

#include "core/textfiles.h"
#include "core/world.h"

#include <span>
#include <string>
#include <vector>

namespace tessaly {

// A recordcolumn of a file of records.
struct recordcolumn {
    value* scalar = nullptr;                   // takes a field as it is read
    table<value, lastrecord>* kept = nullptr;  // keeps the fields of all records, one index a record
    bool text = false;                         // holds texts, whatever they look like
};
using recordcolumns = std::span<const recordcolumn>;

// The eleven recordcolumns of a design record; the three in which readers differ come from the caller.
std::vector<recordcolumn> designcolumns(recordcolumn number, recordcolumn code, recordcolumn trailer);

// The same eleven for a record that is read and not stored.
std::vector<recordcolumn> unstoredcolumns();

// One line of text fields as records are written: texts in double quotes, numbers bare, commas between, CR LF behind.
std::string recordline(const std::vector<value>& fields);

// A line of first, record r as the tables of these recordcolumns keep it, and last.
std::string keptline(const value& first, recordcolumns kept, const value& r, const value& last);

// Reads a record, each field into its recordcolumn's place: a record that breaks off leaves its front
// there. Returns the fields; fails: input past end of file, overflow.
std::vector<value> readrecord(textinput& in, recordcolumns form);

// Keeps a record's fields in the tables of its recordcolumns.
void keeprecord(int i, recordcolumns form, const std::vector<value>& fields);

// "designs\" and the name.
std::string designpath(const value& name);

}  // namespace tessaly

// Records: the lines of design files and of the temporary files of a replay. The columns of a design record are listed
// only here; a reader passes the columns that it needs.
#pragma once

#include "core/textfiles.h"
#include "core/world.h"

#include <span>
#include <string>
#include <vector>

namespace tessaly {

struct recordcolumn {
    value* scalar = nullptr;        // set to each field that is read; nullptr: none
    recordtable* stored = nullptr;  // the fields of all records, indexed by record; nullptr: not stored
    bool text = false;              // fields are read as texts, even if they look like numbers
};
using recordcolumns = std::span<const recordcolumn>;

constexpr int recordlength = 11;  // fields of a design record

// Returns the columns of a design record. The caller gives the three columns in which the readers differ.
std::vector<recordcolumn> designcolumns(recordcolumn number, recordcolumn code, recordcolumn trailer);

// Formats fields as a line: texts in double quotes, numbers without, separated by commas, ending in CR LF.
std::string recordline(const std::vector<value>& fields);

// Formats a line that consists of first, the stored fields of record r in these columns, and last.
std::string formatrecord(const value& first, recordcolumns columns, const value& r, const value& last);

// Reads a record and returns its fields. Also stores each field in the scalar of its column. If the file ends within
// the record, the scalars of the fields before its end are set. fails: input past end of file, overflow.
std::vector<value> readrecord(textinput& in, recordcolumns columns);

// Stores the fields of record i in the tables of its columns.
void storerecord(int i, recordcolumns columns, const std::vector<value>& fields);

}  // namespace tessaly

// Records: the lines of design files and of the temporary files of a replay, and the only list of the columns of a
// design record. The readers differ only in the columns that they pass.
#pragma once

#include "core/textfiles.h"
#include "core/world.h"

#include <span>
#include <string>
#include <vector>

namespace tessaly {

struct recordcolumn {
    value* scalar = nullptr;                     // receives each field that is read; nullptr: none
    table<value, lastrecord>* stored = nullptr;  // fields of all records, indexed by record; nullptr: not stored
    bool text = false;                           // all fields are texts, even if they look like numbers
};
using recordcolumns = std::span<const recordcolumn>;

constexpr int recordlength = 11;  // fields of a design record

// Returns the eleven columns of a design record; the caller gives the three in which the readers differ.
std::vector<recordcolumn> designcolumns(recordcolumn number, recordcolumn code, recordcolumn trailer);

// Formats fields as a line: texts in double quotes, numbers as they are, separated by commas, ending in CR LF.
std::string recordline(const std::vector<value>& fields);

// Formats a line: first, the fields of record r in the tables of these columns, and last.
std::string formatrecord(const value& first, recordcolumns columns, const value& r, const value& last);

// Reads a record, each field into the scalar of its column, and returns the fields. If the record is cut short, the
// scalars of the fields already read stay set. fails: input past end of file, overflow.
std::vector<value> readrecord(textinput& in, recordcolumns columns);

// Stores the fields of record i in the tables of its columns.
void storerecord(int i, recordcolumns columns, const std::vector<value>& fields);

}  // namespace tessaly

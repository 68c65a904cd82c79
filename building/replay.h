// Steps shared by singlereader and combinedreader: reading design files up to the first failure, the temporary files,
// and the solid replay, which sorts records by plan distance, writes them to a temporary file and paints them from
// there.
#pragma once

#include "building/records.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"
#include "core/world.h"

#include <functional>

namespace tessaly {

// The line of a design file from which a record of a temporary file was read, for reports.
struct recordorigin {
    std::string path;  // of the design file; "": unknown
    int line;
};

// A temporary file of a replay, which is deleted when the replay ends. New records are appended to it. If an
// interrupted replay left records in it, or the user picked a first file without a second one, these come before the
// new records and are replayed instead of them. This is intended.
struct temporaryfile {
    const char* path;
    bool created = false;  // by this run of the program; otherwise the origins of its lines are unknown
    std::vector<recordorigin> origins = {};
};
inline temporaryfile tempfile{"nonuser\\temp.txt"}, sortedtempfile{"nonuser\\temp2.txt"};

// Appends line(1), line(2) .. to a temporary file on channel 2, a line for each origin. fails: as openappend and line.
void appendtemporary(temporaryfile& file, const std::vector<recordorigin>& origins,
                     const std::function<std::string(int i)>& line);

// Reads the first n lines of a temporary file on channel 2. After each line k, calls use with its fields and, for
// reports, the location of its record in the design file from which it came, or in the temporary file if that is
// unknown. fails: as openinput, readrecord and use; the file then stays open.
void readtemporary(
    const temporaryfile& file, int n, recordcolumns columns,
    const std::function<void(int k, const std::vector<value>& fields, const textinput& in, fieldlocation record)>& use);

void deletetemporary(temporaryfile& file);

// Runs step(1), step(2) .. step(maxsteps) until one of them fails, whatever the failure, and returns the number of
// steps that succeeded. The readers do not test for the end of a file: the read that fails there ends their loop. A
// replay catches failures only here.
template <class procedure>
int repeatuntilfailure(int maxsteps, procedure step) {
    int done = 0;
    try {
        for (; done < maxsteps; ++done) step(done + 1);
    } catch (const failure&) {
    }
    return done;
}

// Reads at most 1000 records of a design file into the tables of the columns, up to the first failure, and returns
// their origins. fails: as openinput.
std::vector<recordorigin> loaddesignfile(int channel, const value& name, recordcolumns columns);

// Calls use for each complete record of a design file, at most maxrecords, and returns their number. Needs no channel
// and changes no scalar or table. fails: as filebytes.
int foreachrecord(const value& name, int maxrecords, const std::function<void(const std::vector<value>& record)>& use);

// Reads, places and draws the element of the record that was just read; kind and code select it. Then sets rotx to 0,
// because the placement may have left radians there. record: its location, for reports. reads: rotx, rotz, placex,
// placey, placez; writes: placemode, datafile, rotx, as readelements; fails: as readelements, invalid call.
void loadrecordelement(const value& kind, const value& code, const textinput& in, fieldlocation record);

// Paints the records 1..n of the tables, those with the largest plan distance from the eye first, and advances the
// progress strip. Records with number 0 and records at most 1 unit from the eye are not sorted; the slots of rdorder
// that they leave at its end are unchanged from an earlier sort.
// file: stores the sorted records and is deleted at the end; columns: of a line of the file, the first for its
// rank in the order; numbers: the element numbers; kind, code: scalars or constants that select the element of the line
// that was just read; origins: of the records. reads: focusx.., the record tables; writes: perpx.. (absolute until the
// next plotgroups), rdx, rdy (world units), rdorder, quaddist, as readelements and paintsolids; draws on viewport and
// progressbar; fails: type mismatch, as appendtemporary, readelements and paintsolids.
void paintsorted(temporaryfile& file, int n, recordcolumns columns, const recordtable& numbers, const value& kind,
                 const value& code, const std::vector<recordorigin>& origins);

}  // namespace tessaly

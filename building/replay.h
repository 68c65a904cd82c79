// Steps shared by singlereader and combinedreader: the trap that ends a design file, the temporary files, and the solid
// replay, which sorts records by plan distance, writes them to a temporary file and paints them from it.
#pragma once

#include "building/records.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"
#include "core/world.h"

#include <functional>

namespace tessaly {

// Where the record of a temporary file's line was read, for reports.
struct recordorigin {
    std::string path;  // of the design file; "": unknown
    int line;
};

// The temporary files of a replay, deleted at its end. They are opened for appending: records left by an interrupted
// replay or an abandoned choice come before the new ones and are replayed instead of them. This is intended.
struct temporaryfile {
    const char* path;
    bool created = false;  // by this run of the program; if not, the origins of its lines are unknown
    std::vector<recordorigin> origins = {};
};
inline temporaryfile tempfile{"nonuser\\temp.txt"}, sortedtempfile{"nonuser\\temp2.txt"};

// Appends line(1), line(2) .. to a temporary file on channel 2, one for each origin. fails: as openappend, type
// mismatch, subscript.
void appendtemporary(temporaryfile& file, const std::vector<recordorigin>& origins,
                     const std::function<std::string(int i)>& line);

// Reads the first n lines of a temporary file on channel 2. After each it calls use with the number and the fields of
// the line, the file, and the location of the line's record in its design file. fails: as openinput, readrecord and
// use, and then leaves the file open.
void readtemporary(
    const temporaryfile& file, int n, recordcolumns columns,
    const std::function<void(int k, const std::vector<value>& fields, const textinput& in, fieldlocation record)>& use);

void deletetemporary(temporaryfile& file);

// Runs step(1), step(2) .. step(maxsteps) until one of them fails, whatever the failure, and returns the number of
// complete steps. This is the only trap of a replay: the readers do not test for the end of a file, a read fails there.
template <class procedure>
int repeatuntilfailure(int maxsteps, procedure step) {
    int done = 0;
    try {
        for (; done < maxsteps; ++done) step(done + 1);
    } catch (const failure&) {
    }
    return done;
}

// Reads at most 1000 records of a design file into the tables and returns their origins. The first failure ends the
// file. fails: as openinput.
std::vector<recordorigin> loaddesignfile(int channel, const value& name, recordcolumns columns);

// Calls use for each complete record of a design file, at most maxrecords, and returns their number. Uses no channel
// and stores nothing. fails: as openinput.
int foreachrecord(const value& name, int maxrecords, const std::function<void(const std::vector<value>& record)>& use);

// Reads, places and draws the element of the record just read, by its kind and code, and resets rotx, in which the
// placement left radians, to 0. record: its location, for reports. reads: rotx, rotz, placex, placey, placez; writes:
// rotx, as readelements; fails: as readelements.
void loadrecordelement(const value& kind, const value& code, const textinput& in, fieldlocation record);

// Paints the records 1..n of the tables, farthest first, and advances the progress strip. The order is that of the plan
// distance from the eye. Records with number 0 or within 1 unit of the eye are not sorted: their slots of rdorder stay
// unchanged from an earlier sort.
// file: receives the sorted records and is deleted at the end; columns: of its lines, the first being the place in the
// order; numbers: element numbers; kind, code: values that select the element of a line just read; origins: of the
// records.
// reads: focusx.., the record tables; writes: perpx.. (absolute until the next plotgroups), rdx, rdy (world units),
// rdorder, quaddist, as readelements and paintsolids; draws on viewport and progressbar; fails: type mismatch, as
// appendtemporary, readelements and paintsolids.
void paintsorted(temporaryfile& file, int n, recordcolumns columns, const table<value, lastrecord>& numbers,
                 const value& kind, const value& code, const std::vector<recordorigin>& origins);

}  // namespace tessaly

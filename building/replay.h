// Steps shared by singlereader and combinedreader: the trap that ends a design file, the steps of a solid replay (sort
// by plan distance, write a temporary file in that order, paint from it) and the progress strip.
#pragma once

#include "building/records.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"
#include "core/world.h"

namespace tessaly {

// The temporary files of a replay, deleted at its end. They are opened for appending: records left by an interrupted
// replay or an abandoned choice come before the new ones and are replayed instead of them. This is intended.
// For reports, the origin of each line in a design file is stored; lines left by an earlier run of the program have
// none.
struct recordorigin {
    std::string path;  // of the design file; "": unknown
    int line;
};
struct temporaryfile {
    const char* path;
    bool own = false;  // created by this program
    std::vector<recordorigin> origins = {};
};
inline temporaryfile tempfile{"nonuser\\temp.txt"}, sortedtempfile{"nonuser\\temp2.txt"};

// Opens a temporary file for reading on channel 2. fails: as openinput.
textinput& opentemporary(const temporaryfile& file);

// Makes reports about line k, which is read next, name the design file of its record. firstfield: the number of the
// line's first field in that record.
void locaterecord(textinput& in, const temporaryfile& file, int k, int firstfield);

void deletetemporary(temporaryfile& file);

// Runs step(1), step(2) .. step(maxsteps) until one of them fails, whatever the failure, and returns the number of
// complete steps. This is the only trap of a replay: the readers do not test for the end of a file, a read fails there.
template <class procedure>
int repeatuntilfailure(int maxsteps, procedure step) {
    int done = 0;
    try {
        for (; done < maxsteps; ++done) step(done + 1);
    } catch (const failure&) {
        return done;
    }
    return done;
}

// Reads at most 1000 records of a design file into the tables and returns their origins. The first failure ends the
// file. fails: as openinput.
std::vector<recordorigin> loaddesignfile(int channel, const value& name, recordcolumns columns);

// Returns the number of complete records of a design file, at most 1000. Stores nothing. fails: as loaddesignfile.
int countrecords(const value& name);

// Reads, places and draws the element of the record just read, by its kind and code, and resets rotx, in which the
// placement left radians, to 0. record: its location, for reports. reads: rotx, rotz, placex, placey, placez; writes:
// rotx, as readelements; fails: as readelements.
void drawrecord(const value& kind, const value& code, const textinput& in, fieldlocation record);

// Makes the eye absolute. Only the next plotgroups makes it relative again: after a replay without records the next
// view step starts from the absolute eye. reads: focusx..; writes: perpx..
void makeeyeabsolute();

// Converts the positions of records 1..n to world units and computes their plan distances from the eye; height is
// ignored.
// reads: perpx, perpy; writes: rdx, rdy, quaddist; fails: type mismatch.
void measurerecords(int n);

// Sorts records farthest first: rdorder[1..n] by quaddist, records of equal distance in the order of the file. Skips
// records with number 0 or a distance of at most 1; a slot without a record keeps its rdorder from an earlier sort.
// reads: number, quaddist; writes: rdorder, quaddist (0 for every sorted record); fails: type mismatch if a number is a
// text.
void sortrecords(const table<value, lastrecord>& number, int n);

// Appends line(1) .. line(n) to a temporary file on channel 2; origin(i) is the origin of line(i). fails: as
// openappend, type mismatch, subscript.
template <class formatter, class locating>
void addlines(temporaryfile& file, int n, formatter line, locating origin) {
    textoutput& out = openappend(2, file.path, "temporary file");
    if (out.created) file = {file.path, true};
    for (int i = 1; i <= n; ++i) {
        out.write(line(i));
        if (file.own) file.origins.push_back(origin(i));
    }
    out.close();
}

// Reads n records of a temporary file, and for each advances the progress strip, draws and paints. kind, code: as
// drawrecord; firstfield: as locaterecord. fails: as drawrecord and paintsolids, and leaves the file open on channel 2.
void paintrecords(const temporaryfile& file, int firstfield, int n, recordcolumns columns, const value& kind,
                  const value& code);

// Shows the progress strip for n records: dark, with four light rows per record and four more from the bottom up.
void drawprogress(int n);

// Draws the next red row of the strip, four rows above the last one. Rows above the strip are not visible.
void stepprogress();

}  // namespace tessaly

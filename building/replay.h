// What the file readers share: the trap that ends a design file, the steps of a solid replay (the sort by plan
// distance, the temporary file in its order, the painting from it) and the progress strip. The readers themselves are
// singlereader and combinedreader.
#pragma once

#include "building/records.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"
#include "core/world.h"

namespace tessaly {

// A replay's temporary files, gone when it has run to its end. They are opened for appending: what a broken replay or
// an abandoned choice left behind stands in front of the new records and is replayed in their place. It stays so.
// For reports each line's record in a design file is remembered; what was left behind has none.
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

// Opens a temporary file for reading, on channel 2. fails: as openinput.
textinput& opentemporary(const temporaryfile& file);

// Makes reports of line k, which is read next, name its record's design file. firstfield: the number of the line's
// first field in the record.
void locaterecord(textinput& in, const temporaryfile& file, int k, int firstfield);

void deletetemporary(temporaryfile& file);

// Runs step(1), step(2) .. step(most) until one fails, whatever the failure, and returns how many ran whole: the end of
// a file is never tested for, the failed read is the end. This is the one trap of a replay.
template <class procedure>
int untilfailure(int most, procedure step) {
    int done = 0;
    try {
        for (; done < most; ++done) step(done + 1);
    } catch (const failure&) {
        return done;
    }
    return done;
}

// Keeps the records of a design file, 1000 at most, and returns their origins. The first failure ends the file.
// fails: as openinput.
std::vector<recordorigin> keepdesignfile(int channel, const value& name, recordcolumns form);

// The number of complete records of a design file, 1000 at most, by the same rules; stores nothing. fails: as
// keepdesignfile.
int countrecords(const value& name);

// Places, reads and draws the element of the record just read, by its kind and code. record: its location. rotx is 0
// afterwards, for placement leaves radians in it. reads: rotx, rotz, placex, placey, placez; writes, fails: as
// readelements.
void drawrecord(const value& kind, const value& code, const textinput& in, fieldlocation record);

// Makes the eye absolute; only the next plotgroups makes it relative again, so that after a replay of nothing the next
// view step goes on from the absolute eye. reads: focusx..; writes: perpx..
void makeeyeabsolute();

// Turns the places of records 1..n into world units and measures their plan distances from the eye; height has no part.
// reads: perpx, perpy; writes: rdx, rdy, quaddist; fails: type mismatch.
void measurerecords(int n);

// Orders records farthest first: rdorder[1..n] by quaddist, equal distances in the order of the file, records of number
// 0 passed over. A record at a distance of 1 or less is never chosen; a slot that finds none keeps what an earlier sort
// left in rdorder.
// reads: number; writes: rdorder, quaddist (0 for every record taken); fails: type mismatch for a number that is a
// text.
void sortrecords(const table<value, lastrecord>& number, int n);

// Adds line(1) .. line(n) to a temporary file, on channel 2; origin(i) is the origin of line(i). fails: as openappend,
// type mismatch, subscript.
template <class form, class locating>
void addlines(temporaryfile& file, int n, form line, locating origin) {
    textoutput& out = openappend(2, file.path, "temporary file");
    if (out.created) file = {file.path, true};
    for (int i = 1; i <= n; ++i) {
        out.write(line(i));
        if (file.own) file.origins.push_back(origin(i));
    }
    out.close();
}

// Reads n records of a temporary file and draws and paints each, a step of the strip before it. kind, code: as
// drawrecord; firstfield: as locaterecord. fails: as drawrecord and paintsolids; the file stays open on channel 2.
void paintrecords(const temporaryfile& file, int firstfield, int n, recordcolumns form, const value& kind,
                  const value& code);

// Shows the progress strip for n records: cleared to dark, four light rows a record and four over, from the bottom up.
void drawprogress(int n);

// One element further: the strip's next red row, four rows up. Rows above the strip fall outside it.
void stepprogress();

}  // namespace tessaly

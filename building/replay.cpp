// Steps shared by the file readers, and the progress strip of the solid replays.

#include "building/replay.h"

#include "building/designfiles.h"
#include "core/controls.h"
#include "core/textfiles.h"
#include "data/elements.h"
#include "render/painter.h"
#include "render/surface.h"

#include <cmath>

namespace tessaly {

namespace {

constexpr double minsorteddistance = 1;  // model units; only records farther away are sorted

// The progress strip, in its pixels, y pointing down. Its rows are lines from x 1 to x 17; stripbottom is the row below
// the lowest.
constexpr float stripleft = 1, stripright = 17;
constexpr int stripbottom = 701, striprows = 701, rowsperrecord = 4;
constexpr colour lengthcolour{200, 200, 200}, stripcolour{100, 100, 100}, donecolour{250, 50, 50};

void drawstriprow(int row, colour c) {
    const float y = static_cast<float>(row);
    progresssurface->line(stripleft, y, stripright, y, c);
}

// Draws count rows, from the bottom of the strip upwards.
void drawstriprows(int count, colour c) {
    for (int row = stripbottom - 1; row >= stripbottom - count; --row) drawstriprow(row, c);
}

// Shows the strip for n records: dark, with four light rows per record and four more at the bottom.
void drawprogress(int n) {
    show(progressbar);
    drawstriprows(striprows, stripcolour);
    drawstriprows(rowsperrecord * (n + 1), lengthcolour);
    progresssurface->flush();
}

// Draws the red row of record k, four rows above that of the previous record. Rows above the strip are not visible.
void stepprogress(int k) {
    drawstriprow(stripbottom - rowsperrecord * k, donecolour);
    progresssurface->flush();
}

// Makes the eye absolute. The next plotgroups makes it relative again; after a replay without records, a view step
// therefore starts from the absolute eye.
void makeeyeabsolute() {
    perpx = perpx + focusx;
    perpy = perpy + focusy;
    perpz = perpz + focusz;
}

double squared(double d) { return d * d; }

// Converts the positions of records 1..n to world units and computes their plan distances from the eye, without height.
void shiftandmeasurerecords(int n) {
    for (int i = 1; i <= n; ++i) {
        rdx.set(i, rdx[i] - planoriginx);
        rdy.set(i, rdy[i] - planoriginy);
        quaddist.set(i, std::sqrt(squared(perpx - rdx[i]) + squared(perpy - rdy[i])));
    }
}

// Sorts the records by quaddist into rdorder[1..n], farthest first, records of equal distance in their old order. Sets
// quaddist of each sorted record to 0.
void sortrecords(const recordtable& numbers, int n) {
    for (int slot = 1; slot <= n; ++slot) {
        double farthest = minsorteddistance;
        for (int j = 1; j <= lastrecord; ++j) {
            if (numbers[j] == 0 || !(quaddist[j] > farthest)) continue;
            farthest = quaddist[j];
            rdorder.set(slot, j);
        }
        quaddist.set(rdorder[slot], 0);
    }
}

// Writes the records 1..n of the tables in the order of rdorder.
void writesorted(temporaryfile& file, int n, recordcolumns columns, const std::vector<recordorigin>& origins) {
    std::vector<recordorigin> sorted;
    for (int slot = 1; slot <= n; ++slot) {
        const auto index = static_cast<std::size_t>(double(rdorder[slot])) - 1;
        sorted.push_back(index < origins.size() ? origins[index] : recordorigin{});
    }
    appendtemporary(file, sorted, [columns](int slot) {
        const value& r = rdorder[slot];
        return formatrecord(slot, columns.subspan(1, columns.size() - 2), r, (*columns.back().stored)[r]);
    });
}

}  // namespace

void appendtemporary(temporaryfile& file, const std::vector<recordorigin>& origins,
                     const std::function<std::string(int i)>& line) {
    textoutput& out = openappend(2, file.path, "temporary file");
    if (out.created) file = {file.path, true};
    for (std::size_t i = 0; i < origins.size(); ++i) {
        out.write(line(static_cast<int>(i) + 1));
        if (file.created) file.origins.push_back(origins[i]);
    }
    out.close();
}

void readtemporary(const temporaryfile& file, int n, recordcolumns columns,
                   const std::function<void(int k, const std::vector<value>& fields, const textinput& in,
                                            fieldlocation record)>& use) {
    // The number of a line's first field in the record; 0: it is not part of the record.
    const int firstfield = recordlength + 1 - static_cast<int>(columns.size());
    textinput& in = openinput(2, file.path, "temporary file");
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i) {
        const bool known = i < file.origins.size() && !file.origins[i].path.empty();
        in.path = known ? file.origins[i].path : file.path;
        in.nextlocation = known ? fieldlocation{file.origins[i].line, firstfield} : fieldlocation{int(i) + 1, 1};
        const fieldlocation record = {in.nextlocation.line, 1};
        const std::vector<value> fields = readrecord(in, columns);
        use(static_cast<int>(i) + 1, fields, in, record);
    }
    in.close();
}

void deletetemporary(temporaryfile& file) {
    deletefile(file.path);
    file = {file.path};
}

std::vector<recordorigin> loaddesignfile(int channel, const value& name, recordcolumns columns) {
    textinput& in = openinput(channel, designpath(name), "design file");
    std::vector<recordorigin> origins;
    repeatuntilfailure(lastrecord, [&](int i) {
        const int line = in.nextlocation.line;
        storerecord(i, columns, readrecord(in, columns));
        origins.push_back({in.path, line});
    });
    in.close();
    return origins;
}

int foreachrecord(const value& name, int maxrecords, const std::function<void(const std::vector<value>& record)>& use) {
    textinput in{designpath(name), filebytes(designpath(name), "design file")};
    std::vector<recordcolumn> columns = designcolumns({}, {}, {});
    for (recordcolumn& c : columns) c = {nullptr, nullptr, c.text};
    return repeatuntilfailure(maxrecords, [&](int) { use(readrecord(in, columns)); });
}

void loadrecordelement(const value& kind, const value& code, const textinput& in, fieldlocation record) {
    elementfileforcode(kind, code);
    if (datafile.empty()) {
        resetworld();
        elementfilefailure(kind, code, in, record);
    }
    readelements();
    rotx = 0;
}

void paintsorted(temporaryfile& file, int n, recordcolumns columns, const recordtable& numbers, const value& kind,
                 const value& code, const std::vector<recordorigin>& origins) {
    makeeyeabsolute();
    shiftandmeasurerecords(n);
    sortrecords(numbers, n);
    writesorted(file, n, columns, origins);
    drawprogress(n);
    readtemporary(file, n, columns, [&](int k, const auto&, const textinput& in, fieldlocation record) {
        stepprogress(k);
        loadrecordelement(kind, code, in, record);
        paintsolids();
    });
    deletetemporary(file);
    hide(progressbar);
}

}  // namespace tessaly

// Steps shared by the file readers.

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

constexpr double minsorted = 1;  // only records farther away than this are sorted

// The progress strip, in its own pixels, y pointing down: rows from x 1 to x 17. stripbottom is one below the lowest
// row.
constexpr float stripleft = 1, stripright = 17;
constexpr int stripbottom = 701, striprows = 701, rowsperrecord = 4;
constexpr colour striplength{200, 200, 200}, stripback{100, 100, 100}, stripdone{250, 50, 50};

int donerow = stripbottom;  // the last red row

void drawstriprow(int row, colour c) {
    const float y = static_cast<float>(row);
    progresssurface->line(stripleft, y, stripright, y, c);
}

// Draws count rows, from the bottom of the strip upwards.
void drawstriprows(int count, colour c) {
    for (int row = stripbottom - 1; row >= stripbottom - count; --row) drawstriprow(row, c);
}

double squared(double d) { return d * d; }

}  // namespace

textinput& opentemporary(const temporaryfile& file) { return openinput(2, file.path, "temporary file"); }

void locaterecord(textinput& in, const temporaryfile& file, int k, int firstfield) {
    const auto index = static_cast<std::size_t>(k - 1);
    if (index >= file.origins.size() || file.origins[index].path.empty()) return;
    in.path = file.origins[index].path;
    in.nextlocation = {file.origins[index].line, firstfield};
}

int countrecords(const value& name) {
    textinput in{designpath(name), filebytes(designpath(name), "design file")};  // on no channel
    const std::vector<recordcolumn> columns = unstoredcolumns();
    return repeatuntilfailure(lastrecord, [&](int) { readrecord(in, columns); });
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

void drawrecord(const value& kind, const value& code, const textinput& in, fieldlocation record) {
    elementfileforcode(kind, code);
    if (datafile.empty()) {
        resetworld();
        noelementfile(kind, code, in, record);
    }
    readelements();
    rotx = 0;
}

void makeeyeabsolute() {
    perpx = perpx + focusx;
    perpy = perpy + focusy;
    perpz = perpz + focusz;
}

void measurerecords(int n) {
    for (int i = 1; i <= n; ++i) {
        rdx.set(i, rdx[i] - planoriginx);
        rdy.set(i, rdy[i] - planoriginy);
        quaddist.set(i, std::sqrt(squared(perpx - rdx[i]) + squared(perpy - rdy[i])));
    }
}

void sortrecords(const table<value, lastrecord>& number, int n) {
    for (int slot = 1; slot <= n; ++slot) {
        double best = minsorted;
        for (int j = 1; j <= lastrecord; ++j) {
            if (number[j] == 0 || !(quaddist[j] > best)) continue;
            best = quaddist[j];
            rdorder.set(slot, j);
        }
        quaddist.set(rdorder[slot], 0);
    }
}

void paintrecords(const temporaryfile& file, int firstfield, int n, recordcolumns columns, const value& kind,
                  const value& code) {
    textinput& in = opentemporary(file);
    for (int k = 1; k <= n; ++k) {
        locaterecord(in, file, k, firstfield);
        const fieldlocation record = {in.nextlocation.line, 1};
        readrecord(in, columns);
        stepprogress();
        drawrecord(kind, code, in, record);
        paintsolids();
    }
    in.close();
}

void drawprogress(int n) {
    show(progressbar);
    drawstriprows(striprows, stripback);
    drawstriprows(rowsperrecord * (n + 1), striplength);
    donerow = stripbottom;
    progresssurface->flush();
}

void stepprogress() {
    donerow -= rowsperrecord;
    drawstriprow(donerow, stripdone);
    progresssurface->flush();
}

}  // namespace tessaly

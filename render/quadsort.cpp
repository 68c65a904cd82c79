// Measuring and sorting of the quads, in the plain way and in the quick one.

#include "render/quadsort.h"

#include "core/failure.h"
#include "core/world.h"
#include "render/places.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tessaly {

namespace {

constexpr int lastsorted = 7000;                          // quads that take part in the sort
constexpr double farthest = 1000000, takenout = 2000000;  // model units
static_assert(lastsorted == clearedpoints);               // a slot that was not written since a clear is empty

double eyedistance(const value& point) {
    const double x = perpx - ptx[point], y = perpy - pty[point], z = perpz - ptz[point];
    return std::sqrt((x * x + y * y) + z * z);
}

// The distances of a quad's corners from the eye; the nearest is its key.
void measurecorners(int i) {
    quadcornerdist1.set(i, eyedistance(quad1[i]));
    quadcornerdist2.set(i, eyedistance(quad3[i]));
    quadcornerdist3.set(i, eyedistance(quad2[i]));
    quadcornerdist4.set(i, eyedistance(quad4[i]));
    double nearest = quadcornerdist1[i];
    if (quadcornerdist2[i] < nearest) nearest = quadcornerdist2[i];
    if (quadcornerdist3[i] < nearest) nearest = quadcornerdist3[i];
    if (quadcornerdist4[i] < nearest) nearest = quadcornerdist4[i];
    quaddist.set(i, nearest);
}

void measurequad(int i) {
    // The fourth corner is slot 0's, not slot i's: three corners decide whether a quad counts as empty here.
    if (quad1[i] == 0 && quad2[i] == 0 && quad3[i] == 0 && quad4[0] == 0) return;
    tellmisses([i] { return placeofcorner(i); }, [i] { measurecorners(i); });
}

// Runs visit(i) for every slot that may hold a quad, ascending.
template <class procedure>
void overwrittenslots(procedure visit) {
    writtenpages pages = quad1.written();
    for (const auto* corner : {&quad2, &quad3, &quad4}) pages |= corner->written();
    pages.over(lastsorted, [&visit](int first, int last) {
        for (int i = first; i <= last; ++i) visit(i);
    });
}

struct candidate {
    double key;
    int slot;
    bool operator<(const candidate& o) const { return key < o.key || (key == o.key && slot < o.slot); }
};

// Gives the filled slots, as positions, the quads that can be chosen, nearest first.
void sortquads(const std::vector<int>& slots) {
    static std::vector<candidate> chosen;
    chosen.clear();
    for (const int i : slots)
        if (quaddist[i] < farthest) chosen.push_back({quaddist[i], i});
    std::sort(chosen.begin(), chosen.end());
    for (std::size_t k = 0; k < slots.size(); ++k) {
        if (k < chosen.size()) quadorder.set(slots[k], chosen[k].slot);
        quaddist.set(quadorder[slots[k]], takenout);
    }
}

}  // namespace

void orderquads() {
    if (plainway || quad4[0] != 0) return orderquadsplainly();  // with slot 0 filled no quad counts as empty
    static std::vector<int> slots;
    slots.clear();
    overwrittenslots(measurequad);
    overwrittenslots([](int i) {
        if (!emptyquad(i)) slots.push_back(i);
    });
    sortquads(slots);
}

void orderquadsplainly() {
    for (int i = 1; i <= lastsorted; ++i) measurequad(i);
    for (int i = 1; i <= lastsorted; ++i) {
        if (emptyquad(i)) continue;
        double best = farthest;
        for (int j = 1; j <= lastsorted; ++j) {
            if (emptyquad(j) || !(quaddist[j] < best)) continue;
            best = quaddist[j];
            quadorder.set(i, j);
        }
        quaddist.set(quadorder[i], takenout);
    }
}

bool emptyquad(int i) { return quad1[i] == 0 && quad2[i] == 0 && quad3[i] == 0 && quad4[i] == 0; }

}  // namespace tessaly

// Computes the distances of the quads and sorts them, visiting only the written pages of the tables.

#include "render/quadsort.h"

#include "core/failure.h"
#include "core/world.h"
#include "render/locations.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tessaly {

namespace {

constexpr int lastsorted = 7000;                                    // highest slot that the sort considers
constexpr double distancelimit = 1000000, alreadychosen = 2000000;  // model units
static_assert(lastsorted == clearedpoints);  // so that a slot not written since the last clear is empty

double eyedistance(const value& point) {
    const double x = perpx - ptx[point], y = perpy - pty[point], z = perpz - ptz[point];
    return std::sqrt((x * x + y * y) + z * z);
}

// Sets the distances of a quad's corners from the eye; the smallest is the quad's sort key.
void measurecorners(int i) {
    quadcornerdist1.set(i, eyedistance(quad1[i]));
    quadcornerdist2.set(i, eyedistance(quad3[i]));
    quadcornerdist3.set(i, eyedistance(quad2[i]));
    quadcornerdist4.set(i, eyedistance(quad4[i]));
    quaddist.set(i, std::min({quadcornerdist1[i], quadcornerdist2[i], quadcornerdist3[i], quadcornerdist4[i]}));
}

void measurequad(int i) {
    // Deliberately tests quad4[0], not quad4[i]: here three corners decide whether a quad is empty.
    if (quad1[i] == 0 && quad2[i] == 0 && quad3[i] == 0 && quad4[0] == 0) return;
    withsubscriptlocation([i] { return locationofbadcorner(i); }, [i] { measurecorners(i); });
}

// Returns the slots that may hold quads, ascending.
std::vector<int> writtenslots() {
    pageset pages = quad1.written();
    for (const auto* corner : {&quad2, &quad3, &quad4}) pages |= corner->written();
    if (quad4[0] != 0) pages.set();  // then measurequad treats no slot as empty
    std::vector<int> slots;
    visitpages(pages, lastsorted, [&slots](int first, int last) {
        for (int i = first; i <= last; ++i) slots.push_back(i);
    });
    return slots;
}

}  // namespace

void orderquads() {
    std::vector<int> slots = writtenslots();
    for (const int i : slots) measurequad(i);
    if (!noshortcuts) std::erase_if(slots, emptyquad);
    for (const int i : slots) {
        if (emptyquad(i)) continue;
        double nearest = distancelimit;
        for (const int j : slots) {
            if (emptyquad(j) || !(quaddist[j] < nearest)) continue;
            nearest = quaddist[j];
            quadorder.set(i, j);
        }
        quaddist.set(quadorder[i], alreadychosen);
    }
}

bool emptyquad(int i) { return quad1[i] == 0 && quad2[i] == 0 && quad3[i] == 0 && quad4[i] == 0; }

}  // namespace tessaly

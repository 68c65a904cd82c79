// Defines and registers the tables and scalars of the world, and clears them. All tables are defined in this file,
// group after group, because their addresses decide which cache lines they share.

#include "core/world.h"

#include "core/failure.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <vector>

namespace tessaly {

tablebase* tablebase::first = nullptr;
bool noshortcuts = false;

#define TABLE(name) name(#name)
table<value, lastpoint, clearedpoints> TABLE(basex), TABLE(basey), TABLE(basez), TABLE(ptx), TABLE(pty), TABLE(ptz);
table<value, lastpoint> TABLE(savex), TABLE(savey), TABLE(savez);
table<double, lastpoint> TABLE(planex), TABLE(planey), TABLE(planez), TABLE(planedist), TABLE(planecos), TABLE(planeup),
    TABLE(planeside), TABLE(screenx), TABLE(screeny);
table<value, lastline> TABLE(lineend1), TABLE(lineend2);
table<value, lastgroup> TABLE(groupfirst), TABLE(grouplast);
table<value, lastquad, clearedpoints> TABLE(quad1), TABLE(quad2), TABLE(quad3), TABLE(quad4), TABLE(quadcolour),
    TABLE(quadface), TABLE(quadgrade), TABLE(framing1), TABLE(framing2);
table<double, lastquad> TABLE(quaddist), TABLE(quadcornerdist1), TABLE(quadcornerdist2), TABLE(quadcornerdist3),
    TABLE(quadcornerdist4);
table<value, lastquad> TABLE(quadorder);
table<value, lastquad, clearedpoints> TABLE(cubegrade);
table<value, lastquad, clearedcubecolours> TABLE(cubecolour);
table<value, lastcolour> TABLE(palred), TABLE(palgreen), TABLE(palblue);
table<value, 12 * 9> TABLE(viewpreset);
table<value, lastrecord> TABLE(rdnumber), TABLE(rdgirdernumber), TABLE(rdpanelnumber), TABLE(rdroofnumber),
    TABLE(rdcode), TABLE(rdgirdercode), TABLE(rdpanelcode), TABLE(rdroofcode), TABLE(rdx), TABLE(rdy), TABLE(rdrotx),
    TABLE(rdrotz), TABLE(rdplacex), TABLE(rdplacey), TABLE(rdplacez), TABLE(rdface), TABLE(rdtrailer), TABLE(rdkind),
    TABLE(rdorder);
#undef TABLE

double planeseedx, planeseedy, planeseedz, planecentrex, planecentrey, planecentrez;
int walkcount, divisions;

namespace {

std::vector<scalar>& registered() {
    static std::vector<scalar> all;
    return all;
}

// Registers a scalar, or the elements of an array starting at 1: linecount1, linecount2 ..
struct entry {
    entry(const char* name, value& held, bool reported) { registered().push_back({name, &held, reported}); }
    entry(const char* word, std::span<value> held, bool reported) {
        for (std::size_t i = 1; i < held.size(); ++i)
            registered().push_back({word + std::to_string(i), &held[i], reported});
    }
};

}  // namespace

// Each scalar with its entry. SHOWN ones are part of the recorded state, in this order.
// clang-format off
#define SHOWN(name) value name; const entry name##entry(#name, name, true)
#define KEPT(name) value name; const entry name##entry(#name, name, false)
SHOWN(perpx); SHOWN(perpy); SHOWN(perpz); SHOWN(focusx); SHOWN(focusy); SHOWN(focusz); SHOWN(mag);
SHOWN(vertshift); SHOWN(horizshift); SHOWN(perprelx); SHOWN(perprely); SHOWN(perprelz);
SHOWN(perpabsx); SHOWN(perpabsy); SHOWN(perpabsz); SHOWN(perprelative); SHOWN(viewprompt); SHOWN(refready);
SHOWN(plotstate); SHOWN(skipfixup); SHOWN(rebasedone); SHOWN(magshown);
SHOWN(floorname); SHOWN(floornum); SHOWN(drawmode); SHOWN(recordmode); SHOWN(palname); SHOWN(panelcode);
SHOWN(firstfilename); SHOWN(secondfilename); SHOWN(preopened);
SHOWN(datafile); SHOWN(elementkind); SHOWN(placemode); SHOWN(placex); SHOWN(placey); SHOWN(placez);
SHOWN(rotz); SHOWN(rotx); SHOWN(facecode);
SHOWN(rotstage); SHOWN(rotboxx); SHOWN(rotboxy); SHOWN(drawset); SHOWN(panelprefix); SHOWN(combinedcount);
SHOWN(bmpimage);
value linecount[linegroups + 1]; const entry linecounts("linecount", linecount, true);
value ptcount[5]; const entry ptcounts("ptcount", ptcount, true);
value wirecolour[linegroups + 1]; const entry wirecolours("wirecolour", wirecolour, false);
KEPT(shapefile); KEPT(rowgrade); KEPT(rowcolour); KEPT(backred); KEPT(backgreen); KEPT(backblue);
KEPT(curwirecolour); KEPT(recordtext); KEPT(drawtext); KEPT(girdercode); KEPT(roofcode); KEPT(anycode);
KEPT(startgroup1); KEPT(startgroup2); KEPT(startgroup3); KEPT(startprefix); KEPT(startdone);
KEPT(focusinc); KEPT(focusstep); KEPT(maginc); KEPT(shiftinc); KEPT(perpsumx); KEPT(perpsumy); KEPT(perpsumz);
KEPT(facecolour); KEPT(framecolour); KEPT(railstart1); KEPT(railend1); KEPT(railstart2); KEPT(railend2); KEPT(framen);
KEPT(capname); KEPT(capsidecar); KEPT(bmpfile); KEPT(bmpstem); KEPT(bmpext); KEPT(bmpsidecar);
KEPT(curgroup); KEPT(startstep); KEPT(spareface); KEPT(anynumber); KEPT(focussign); KEPT(framesecond);
// clang-format on
#undef SHOWN
#undef KEPT

std::span<const scalar> scalars() { return registered(); }

void subscriptfailure(const char* tablename, double index, int last) {
    throw failure(failurekind::subscript, std::string(tablename) + " has no index " + plaintext(index) +
                                              ", an index 0.." + std::to_string(last) + " was expected");
}

int roundedindex(const value& v, const char* tablename, int last) {
    const double index = nearestwhole(v);
    if (!(index >= 0 && index <= last)) subscriptfailure(tablename, v, last);
    return static_cast<int>(index);
}

void resetworld() {
    std::fill(linecount + 1, std::end(linecount), value(0));
    std::fill(ptcount + 1, std::end(ptcount), value(0));
    for (auto* t : {&ptx, &pty, &ptz, &basex, &basey, &basez}) t->clear();
    for (auto* t : {&quad1, &quad2, &quad3, &quad4, &framing1, &framing2, &quadface, &quadgrade, &quadcolour})
        t->clear();
    cubegrade.clear();
    cubecolour.clear();
}

void restartworld() {
    for (tablebase* t = tablebase::first; t != nullptr; t = t->next) t->reset();
    for (const scalar& s : scalars()) *s.variable = value();
    for (double* d : {&planeseedx, &planeseedy, &planeseedz, &planecentrex, &planecentrey, &planecentrez}) *d = 0;
    walkcount = divisions = 0;
}

}  // namespace tessaly

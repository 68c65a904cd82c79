// The world's tables and scalars themselves, the list of the scalars, and the two ways of clearing.
// A table's address decides which cache lines it fights for: all of them stand in one file, in the header's order.

#include "core/world.h"

#include "core/failure.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tessaly {

tablebase* tablebase::first = nullptr;
bool plainway = false;

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

value ptcount[5], linecount[linegroups + 1], wirecolour[linegroups + 1], drawset, rowgrade, rowcolour;
value backred, backgreen, backblue;
value perpx, perpy, perpz, focusx, focusy, focusz, mag, vertshift, horizshift;
value perprelx, perprely, perprelz, perpabsx, perpabsy, perpabsz, perprelative, viewprompt, refready, plotstate;
value skipfixup, rebasedone, magshown, curgroup, curwirecolour;
double planeseedx, planeseedy, planeseedz, planecentrex, planecentrey, planecentrez;
int walkcount, divisions;
value datafile, elementkind, placemode, placex, placey, placez, rotz, rotx, facecode, spareface;
value floorname, floornum, drawmode, recordmode, recordtext, drawtext, palname, panelprefix, panelcode;
value girdercode, roofcode, anycode, anynumber, firstfilename, secondfilename, shapefile, preopened;
value startgroup1, startgroup2, startgroup3, startstep, startprefix, startdone;
value rotstage, rotboxx, rotboxy, focusinc, focussign, focusstep, maginc, shiftinc, perpsumx, perpsumy, perpsumz;
value facecolour, framecolour, railstart1, railend1, railstart2, railend2, framen, framesecond, combinedcount;
value capname, capsidecar, bmpfile, bmpstem, bmpext, bmpimage, bmpsidecar;

namespace {

#define SHOWN(name)                                                                                                    \
    { #name, &name, true }
#define KEPT(name)                                                                                                     \
    { #name, &name, false }
const scalar scalars[] = {
    // clang-format off
    SHOWN(perpx), SHOWN(perpy), SHOWN(perpz), SHOWN(focusx), SHOWN(focusy), SHOWN(focusz), SHOWN(mag),
    SHOWN(vertshift), SHOWN(horizshift), SHOWN(perprelx), SHOWN(perprely), SHOWN(perprelz),
    SHOWN(perpabsx), SHOWN(perpabsy), SHOWN(perpabsz), SHOWN(perprelative), SHOWN(viewprompt), SHOWN(refready),
    SHOWN(plotstate), SHOWN(skipfixup), SHOWN(rebasedone), SHOWN(magshown),
    SHOWN(floorname), SHOWN(floornum), SHOWN(drawmode), SHOWN(recordmode), SHOWN(palname), SHOWN(panelcode),
    SHOWN(firstfilename), SHOWN(secondfilename), SHOWN(preopened),
    SHOWN(datafile), SHOWN(elementkind), SHOWN(placemode), SHOWN(placex), SHOWN(placey), SHOWN(placez),
    SHOWN(rotz), SHOWN(rotx), SHOWN(facecode),
    SHOWN(rotstage), SHOWN(rotboxx), SHOWN(rotboxy), SHOWN(drawset), SHOWN(panelprefix), SHOWN(combinedcount),
    SHOWN(bmpimage),
    SHOWN(linecount1), SHOWN(linecount2), SHOWN(linecount3), SHOWN(linecount4), SHOWN(linecount5),
    SHOWN(linecount6), SHOWN(linecount7), SHOWN(linecount8), SHOWN(linecount9), SHOWN(linecount10),
    SHOWN(ptcount1), SHOWN(ptcount2), SHOWN(ptcount3), SHOWN(ptcount4),
    KEPT(shapefile), KEPT(wirecolour1), KEPT(wirecolour2), KEPT(wirecolour3), KEPT(wirecolour4), KEPT(wirecolour5),
    KEPT(wirecolour6), KEPT(wirecolour7), KEPT(wirecolour8), KEPT(wirecolour9), KEPT(wirecolour10),
    KEPT(rowgrade), KEPT(rowcolour), KEPT(backred), KEPT(backgreen), KEPT(backblue), KEPT(curgroup),
    KEPT(curwirecolour), KEPT(spareface), KEPT(recordtext), KEPT(drawtext), KEPT(girdercode), KEPT(roofcode),
    KEPT(anycode), KEPT(anynumber), KEPT(startgroup1), KEPT(startgroup2), KEPT(startgroup3), KEPT(startstep),
    KEPT(startprefix), KEPT(startdone), KEPT(focusinc), KEPT(focussign), KEPT(focusstep), KEPT(maginc),
    KEPT(shiftinc), KEPT(perpsumx), KEPT(perpsumy), KEPT(perpsumz), KEPT(facecolour), KEPT(framecolour),
    KEPT(railstart1), KEPT(railend1), KEPT(railstart2), KEPT(railend2), KEPT(framen), KEPT(framesecond),
    KEPT(capname), KEPT(capsidecar), KEPT(bmpfile), KEPT(bmpstem), KEPT(bmpext), KEPT(bmpsidecar),
    // clang-format on
};
#undef SHOWN
#undef KEPT

}  // namespace

const scalar* scalarsbegin() { return std::begin(scalars); }
const scalar* scalarsend() { return std::end(scalars); }

void subscriptfailure(const char* tablename, double index, int last) {
    throw failure(failurekind::subscript, std::string(tablename) + " has no index " + shortesttext(index) +
                                              ", an index 0.." + std::to_string(last) + " was expected");
}

int roundedindex(const value& v, const char* tablename) {
    const double index = nearestwhole(v);
    if (!(std::abs(index) < 1e9)) subscriptfailure(tablename, index, 0);
    return static_cast<int>(index);
}

void resetworld() {
    std::fill(linecount + 1, std::end(linecount), value(0));
    std::fill(ptcount + 1, std::end(ptcount), value(0));
    const auto clear = [](auto& t) { plainway ? t.clearplainly() : t.clear(); };
    for (auto* t : {&ptx, &pty, &ptz, &basex, &basey, &basez}) clear(*t);
    for (auto* t : {&quad1, &quad2, &quad3, &quad4, &framing1, &framing2, &quadface, &quadgrade, &quadcolour})
        clear(*t);
    clear(cubegrade);
    clear(cubecolour);
}

void forgetworld() {
    for (tablebase* t = tablebase::first; t != nullptr; t = t->next) t->forget();
    for (const scalar& s : scalars) *s.held = value();
    walkcount = divisions = 0;
}

}  // namespace tessaly

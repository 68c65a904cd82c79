// Defines the tables of the world, lists the scalars, and resets both. All tables are defined in this file, group after
// group, because their addresses decide which cache lines they share.

#include "core/world.h"

#include "core/failure.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <vector>

namespace tessaly {

#define TABLE(name) name(#name)
pointtable TABLE(basex), TABLE(basey), TABLE(basez), TABLE(ptx), TABLE(pty), TABLE(ptz);
table<value, lastpoint> TABLE(savex), TABLE(savey), TABLE(savez);
table<double, lastpoint> TABLE(planex), TABLE(planey), TABLE(planez), TABLE(planedist), TABLE(planecos), TABLE(planeup),
    TABLE(planeside), TABLE(screenx), TABLE(screeny);
linetable TABLE(lineend1), TABLE(lineend2);
table<value, lastgroup> TABLE(groupfirst), TABLE(grouplast);
quadtable TABLE(quad1), TABLE(quad2), TABLE(quad3), TABLE(quad4), TABLE(quadcolour), TABLE(quadface), TABLE(quadgrade),
    TABLE(framing1), TABLE(framing2);
table<double, lastquad> TABLE(quaddist), TABLE(quadcornerdist1), TABLE(quadcornerdist2), TABLE(quadcornerdist3),
    TABLE(quadcornerdist4);
table<value, lastquad> TABLE(quadorder);
quadtable TABLE(cubegrade);
table<value, lastquad, clearedcubecolours> TABLE(cubecolour);
table<value, lastcolour> TABLE(palred), TABLE(palgreen), TABLE(palblue);
table<value, 12 * 9> TABLE(viewpreset);
recordtable TABLE(rdnumber), TABLE(rdgirdernumber), TABLE(rdpanelnumber), TABLE(rdroofnumber), TABLE(rdcode),
    TABLE(rdgirdercode), TABLE(rdpanelcode), TABLE(rdroofcode), TABLE(rdx), TABLE(rdy), TABLE(rdrotx), TABLE(rdrotz),
    TABLE(rdplacex), TABLE(rdplacey), TABLE(rdplacez), TABLE(rdface), TABLE(rdtrailer), TABLE(rdkind), TABLE(rdorder);
#undef TABLE

std::span<const scalar> scalars() {
// clang-format off
#define RECORDED(name) {#name, &name, true}
#define UNRECORDED(name) {#name, &name, false}
    static const scalar all[] = {
        RECORDED(perpx), RECORDED(perpy), RECORDED(perpz), RECORDED(focusx), RECORDED(focusy), RECORDED(focusz),
        RECORDED(mag), RECORDED(vertshift), RECORDED(horizshift), RECORDED(perprelx), RECORDED(perprely),
        RECORDED(perprelz), RECORDED(perpabsx), RECORDED(perpabsy), RECORDED(perpabsz), RECORDED(perprelative),
        RECORDED(viewprompt), RECORDED(refready), RECORDED(plotstate), RECORDED(skipfixup), RECORDED(rebasedone),
        RECORDED(magshown), RECORDED(floorname), RECORDED(floornum), RECORDED(drawmode), RECORDED(recordmode),
        RECORDED(palname), RECORDED(panelcode), RECORDED(firstfilename), RECORDED(secondfilename), RECORDED(preopened),
        RECORDED(datafile), RECORDED(elementkind), RECORDED(placemode), RECORDED(placex), RECORDED(placey),
        RECORDED(placez), RECORDED(rotz), RECORDED(rotx), RECORDED(facecode), RECORDED(rotstage), RECORDED(rotboxx),
        RECORDED(rotboxy), RECORDED(drawset), RECORDED(panelprefix), RECORDED(combinedcount), RECORDED(bmpimage),
        RECORDED(linecount1), RECORDED(linecount2), RECORDED(linecount3), RECORDED(linecount4), RECORDED(linecount5),
        RECORDED(linecount6), RECORDED(linecount7), RECORDED(linecount8), RECORDED(linecount9), RECORDED(linecount10),
        RECORDED(ptcount1), RECORDED(ptcount2), RECORDED(ptcount3), RECORDED(ptcount4),
        UNRECORDED(wirecolour1), UNRECORDED(wirecolour2), UNRECORDED(wirecolour3), UNRECORDED(wirecolour4),
        UNRECORDED(wirecolour5), UNRECORDED(wirecolour6), UNRECORDED(wirecolour7), UNRECORDED(wirecolour8),
        UNRECORDED(wirecolour9), UNRECORDED(wirecolour10), UNRECORDED(loadedfile), UNRECORDED(rowgrade),
        UNRECORDED(rowcolour), UNRECORDED(backred), UNRECORDED(backgreen), UNRECORDED(backblue),
        UNRECORDED(curwirecolour), UNRECORDED(recordtext), UNRECORDED(drawtext), UNRECORDED(girdercode),
        UNRECORDED(roofcode), UNRECORDED(anycode), UNRECORDED(startgroup1), UNRECORDED(startgroup2),
        UNRECORDED(startgroup3), UNRECORDED(startprefix), UNRECORDED(startdone), UNRECORDED(focusinc),
        UNRECORDED(focusstep), UNRECORDED(maginc), UNRECORDED(shiftinc), UNRECORDED(perpsumx), UNRECORDED(perpsumy),
        UNRECORDED(perpsumz), UNRECORDED(facecolour), UNRECORDED(framecolour), UNRECORDED(railstart1),
        UNRECORDED(railend1), UNRECORDED(railstart2), UNRECORDED(railend2), UNRECORDED(framen), UNRECORDED(capname),
        UNRECORDED(capsidecar), UNRECORDED(bmpfile), UNRECORDED(bmpstem), UNRECORDED(bmpext), UNRECORDED(bmpsidecar),
        UNRECORDED(curgroup), UNRECORDED(startstep), UNRECORDED(spareface), UNRECORDED(anynumber),
        UNRECORDED(focussign), UNRECORDED(framesecond),
    };
#undef RECORDED
#undef UNRECORDED
    // clang-format on
    return all;
}

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
    for (tablebase* t = tablebase::first; t != nullptr; t = t->next) t->clear();
}

void restartworld() {
    for (tablebase* t = tablebase::first; t != nullptr; t = t->next) t->reset();
    for (const scalar& s : scalars()) *s.variable = value();
    for (double* d : {&planeseedx, &planeseedy, &planeseedz, &planecentrex, &planecentrey, &planecentrez}) *d = 0;
    walkcount = divisions = 0;
}

}  // namespace tessaly

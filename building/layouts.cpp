// Generates the position buttons from the button families.

#include "building/layouts.h"

#include "building/buildstate.h"
#include "building/designfiles.h"
#include "data/elements.h"
#include "render/painter.h"

namespace tessaly {

namespace {

// Panel 155 is recorded with Y 784 although it is at Y 1168. This affects only its order in a solid replay. It is
// intended.
constexpr int exceptionalpanel = 155, itsrecordedy = 784;

std::vector<buttonposition> computebuttonpositions() {
    std::vector<buttonposition> all;
    for (const buttonfamily& f : allbuttonfamilies())
        for (int i = 0; i < f.countx; ++i)
            for (int j = 0; j < f.county; ++j) {
                const int x = f.x0 + bayside * i, y = f.y0 + bayside * j;
                buttonposition p{&f, f.firstnumber + f.county * i + j, x, y, x + f.dx, y + f.dy};
                if (f.layout == &layoutpanels && p.number == exceptionalpanel) p.middley = itsrecordedy;
                all.push_back(p);
            }
    return all;
}

// Sets datafile and panelcode from panelprefix and the snip box, and resets the box to "Full panel". If the box holds
// an unknown text, or no panel type has been chosen, panelcode is unchanged: the recorded code then does not match the
// element drawn. This is intended.
void choosepanelfile() {
    const value text = panelsnipper.text, prefix = panelprefix;
    panelsnipper.text = sniptypes[0].text;
    datafile = prefix.text() + ".txt";
    for (std::size_t snip = 0; snip < std::size(sniptypes); ++snip) {
        if (!text.is(sniptypes[snip].text)) continue;
        datafile = prefix.text() + sniptypes[snip].nameinfix + ".txt";
        for (const paneltype& t : paneltypes)
            if (prefix.is(t.prefix)) panelcode = t.codes[snip];
    }
}

void setplacement(const buttonposition& p) {
    const buttonfamily& f = *p.family;
    if (*f.datafile) datafile = f.datafile;
    elementkind = f.files.kind;
    rotx = f.rotx;
    rotz = f.rotz;
    placemode = f.placemode;
    placex = p.x;
    placey = p.y;
    facecode = f.facecode;
    spareface = 6;
}

}  // namespace

const std::vector<buttonposition>& allbuttonpositions() {
    static const std::vector<buttonposition> positions = computebuttonpositions();
    return positions;
}

std::string positionname(const buttonposition& p) {
    return p.family->nameprefix + std::to_string(p.x) + "y" + std::to_string(p.y);
}

void addlayoutbuttons() {
    for (const buttonposition& p : allbuttonpositions()) {
        const buttonfamily& f = *p.family;
        const int i = (p.x - f.x0) / bayside, j = (p.y - f.y0) / bayside;
        const std::string element = ", element " + std::to_string(p.number);
        addcontrol({.parent = f.layout,
                    .kind = controlkind::button,
                    .name = positionname(p),
                    .bounds = {f.left0 + f.pitch * j, f.top0 + f.pitch * i, f.width, f.height},
                    .shown = true,
                    .background = f.background,
                    .tooltip = positionname(p) + element,
                    .accessiblename = std::string(f.accessiblename) + " at X " + std::to_string(p.x) + ", Y " +
                                      std::to_string(p.y) + element,
                    .elementnumber = p.number,
                    .run = [&p] { clickposition(p); }});
    }
}

void clickposition(const buttonposition& p) {
    const buttonfamily& f = *p.family;
    const bool panel = f.layout == &layoutpanels;
    if (panel) choosepanelfile();
    readbuildstate();
    setplacement(p);
    if (recordmode != 0) recordelement(f.files, p.number, p.middlex, p.middley, panel ? panelcode : value(f.code));
    readelements();
    if (!panel) rotx = 0;
    if (drawmode == 2) paintsolids();
}

}  // namespace tessaly

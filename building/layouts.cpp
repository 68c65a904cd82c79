// The layout windows: one row a family, from which the buttons, their names, places and records all follow.

#include "building/layouts.h"

#include "building/buildstate.h"
#include "building/designfiles.h"
#include "core/world.h"
#include "data/elements.h"
#include "render/painter.h"

namespace tessaly {

namespace {

constexpr int bay = 192;  // layout units
constexpr int fromprefix = -1;
constexpr colour postred{128, 0, 0}, beamred{255, 128, 128}, panelorange{255, 192, 128}, roofblue{192, 192, 255};

constexpr buttonfamily buttonfamilies[] = {
    // clang-format off
    // word      window         datafile       kind      files     first cols rows  x0   y0 mode rotx rotz face code         dx   dy  left   top pitch width height back        accessiblename
    { "postx",   &layoutgirder, "st-post.txt", "girder", "girders",   1,  6,   8,   0,  16,  2,  90,   0,   4,  41,           8,  -8,  480,  480, 1200,  255,  255, postred,     "Post" },
    { "beamx",   &layoutgirder, "st-beam.txt", "girder", "girders",  49,  6,   7,   0,  16,  3,   0,   0,   4,  42,           8,  88,  720,  480, 1200,  975,  255, beamred,     "Beam along Y" },
    { "vbeamx",  &layoutgirder, "st-beam.txt", "girder", "girders",  91,  5,   8,  16,  16,  4,   0, 270,   1,  43,          88,  -8,  480,  720, 1200,  255,  975, beamred,     "Beam along X" },
    { "pan270x", &layoutpanels, "",            "panel",  "panels",    1,  6,   7,   0, 208,  1,   0, 270,   2,  fromprefix,   0,-104,  840,  840,  960,  495,  195, panelorange, "Panel along Y, turned 270 degrees" },
    { "pan90x",  &layoutpanels, "",            "panel",  "panels",   43,  6,   7,  16,   0,  1,   0,  90,   2,  fromprefix,   0, 104,  840, 1200,  960,  495,  195, panelorange, "Panel along Y, turned 90 degrees" },
    { "pan0x",   &layoutpanels, "",            "panel",  "panels",   85,  5,   8,   0,   0,  1,   0,   0,   4,  fromprefix, 104,   0,  360, 1320,  960,  195,  495, panelorange, "Panel along X" },
    { "pan180x", &layoutpanels, "",            "panel",  "panels",  125,  5,   8, 208,  16,  1,   0, 180,   4,  fromprefix,-104,   0,  720, 1320,  960,  195,  495, panelorange, "Panel along X, turned 180 degrees" },
    { "roofx",   &layoutroof,   "st-roof.txt", "roof",   "roofs",     1,  5,   7,   0,   0,  5,   0,   0,   4,   0,         104, 104,  720,  720,  840,  735,  735, roofblue,    "Roof" },
    // clang-format on
};

constexpr int countbuttons() {
    int count = 0;
    for (const buttonfamily& f : buttonfamilies) count += f.cols * f.rows;
    return count;
}
static_assert(countbuttons() == 329);
static_assert(buttonfamilies[2].first + buttonfamilies[2].cols * buttonfamilies[2].rows - 1 == 130);
static_assert(buttonfamilies[6].first + buttonfamilies[6].cols * buttonfamilies[6].rows - 1 == 164);

// One button's constant breaks the rule: panel 155 is recorded with Y 784 though it stands at 1168. It moves that panel
// in the order of a solid replay and does nothing else; it stays.
constexpr int oddpanel = 155, oddpanely = 784;

std::vector<buttonposition> computebuttonpositions() {
    std::vector<buttonposition> all;
    for (const buttonfamily& f : buttonfamilies)
        for (int i = 0; i < f.cols; ++i)
            for (int j = 0; j < f.rows; ++j) {
                const int x = f.x0 + bay * i, y = f.y0 + bay * j;
                buttonposition p{&f, f.first + f.rows * i + j, x, y, x + f.dx, y + f.dy};
                if (f.on == &layoutpanels && p.number == oddpanel) p.middley = oddpanely;
                all.push_back(p);
            }
    return all;
}

std::string tooltip(const buttonposition& p) { return positionname(p) + ", element " + std::to_string(p.number); }

std::string accessiblenameof(const buttonposition& p) {
    return std::string(p.of->accessiblename) + " at X " + std::to_string(p.x) + ", Y " + std::to_string(p.y) +
           ", element " + std::to_string(p.number);
}

// Takes the panel's file and code from its prefix and the snip text, which is full again from now on.
void choosepanelfile() {
    struct snip {
        const char *text, *part;
    };
    static constexpr snip snips[] = {
        {"Full panel", "full"}, {"snip left side", "left"}, {"snip right side", "righ"}, {"snip both sides", "both"}};
    std::string part;
    for (const snip& s : snips)
        if (panelsnipper.text == s.text) part = s.part;
    panelsnipper.text = "Full panel";
    datafile = panelprefix.text() + part + ".txt";
    // An unknown snip text leaves the code: the record then names another element than the file drawn.
    if (const int code = panelcodefor(panelprefix.text(), part)) panelcode = code;
}

void setplacement(const buttonposition& p) {
    const buttonfamily& f = *p.of;
    if (*f.datafile) datafile = f.datafile;
    elementkind = f.kind;
    rotx = f.rotx;
    rotz = f.rotz;
    placemode = f.mode;
    placex = p.x;
    placey = p.y;
    facecode = f.face;
    spareface = 6;
}

}  // namespace

std::span<const buttonfamily> allbuttonfamilies() { return buttonfamilies; }

const std::vector<buttonposition>& allbuttonpositions() {
    static const std::vector<buttonposition> positions = computebuttonpositions();
    return positions;
}

std::string positionname(const buttonposition& p) {
    return p.of->word + std::to_string(p.x) + "y" + std::to_string(p.y);
}

void definelayouts() {
    static std::vector<control> buttons;
    buttons.clear();
    buttons.reserve(allbuttonpositions().size());
    for (const buttonposition& p : allbuttonpositions()) {
        const buttonfamily& f = *p.of;
        const int i = (p.x - f.x0) / bay, j = (p.y - f.y0) / bay;
        buttons.push_back({.in = f.on,
                           .kind = controlkind::button,
                           .name = positionname(p),
                           .bounds = {f.left0 + f.pitch * j, f.top0 + f.pitch * i, f.width, f.height},
                           .shown = true,
                           .back = f.back,
                           .tooltip = tooltip(p),
                           .accessiblename = accessiblenameof(p),
                           .elementnumber = p.number,
                           .run = [&p] { clickposition(p); }});
        addcontrol(buttons.back());
    }
}

void clickposition(const buttonposition& p) {
    const buttonfamily& f = *p.of;
    const bool panel = f.on == &layoutpanels;
    if (panel) choosepanelfile();
    readbuildstate();
    setplacement(p);
    // The record goes to disk before the element is read: a failure in the drawing leaves it in place.
    if (recordmode != 0) recordelement(f.files, p.number, p.middlex, p.middley, panel ? panelcode : value(f.code));
    readelements();
    if (!panel) rotx = 0;
    if (drawmode == 2) paintsolids();
}

}  // namespace tessaly

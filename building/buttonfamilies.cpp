// The table of the button families.

#include "building/buttonfamilies.h"

namespace tessaly {

namespace {

constexpr colour postred{128, 0, 0}, beamred{255, 128, 128}, panelorange{255, 192, 128}, roofblue{192, 192, 255};

constexpr buttonfamily buttonfamilies[] = {
    // clang-format off
//   prefix     layout         datafile       files        first countx county   x0   y0 placemode rotx rotz face code             dx    dy left   top pitch width height background   accessiblename
    {"postx",   &layoutgirder, "st-post.txt", girderfiles,     1,      6,      8,    0,   16,         2,   90,    0,    4, 41,               8,    -8, 480,  480, 1200,  255,   255, postred,     "Post"},
    {"beamx",   &layoutgirder, "st-beam.txt", girderfiles,    49,      6,      7,    0,   16,         3,    0,    0,    4, 42,               8,    88, 720,  480, 1200,  975,   255, beamred,     "Beam along Y"},
    {"vbeamx",  &layoutgirder, "st-beam.txt", girderfiles,    91,      5,      8,   16,   16,         4,    0,  270,    1, 43,              88,    -8, 480,  720, 1200,  255,   975, beamred,     "Beam along X"},
    {"pan270x", &layoutpanels, "",            panelfiles,      1,      6,      7,    0,  208,         1,    0,  270,    2, usespanelcode,    0,  -104, 840,  840,  960,  495,   195, panelorange, "Panel along Y, turned 270 degrees"},
    {"pan90x",  &layoutpanels, "",            panelfiles,     43,      6,      7,   16,    0,         1,    0,   90,    2, usespanelcode,    0,   104, 840, 1200,  960,  495,   195, panelorange, "Panel along Y, turned 90 degrees"},
    {"pan0x",   &layoutpanels, "",            panelfiles,     85,      5,      8,    0,    0,         1,    0,    0,    4, usespanelcode,  104,     0, 360, 1320,  960,  195,   495, panelorange, "Panel along X"},
    {"pan180x", &layoutpanels, "",            panelfiles,    125,      5,      8,  208,   16,         1,    0,  180,    4, usespanelcode, -104,     0, 720, 1320,  960,  195,   495, panelorange, "Panel along X, turned 180 degrees"},
    {"roofx",   &layoutroof,   "st-roof.txt", rooffiles,       1,      5,      7,    0,    0,         5,    0,    0,    4, 0,              104,   104, 720,  720,  840,  735,   735, roofblue,    "Roof"},
    // clang-format on
};

constexpr int countbuttons() {
    int count = 0;
    for (const buttonfamily& f : buttonfamilies) count += f.countx * f.county;
    return count;
}
static_assert(countbuttons() == 329);
static_assert(buttonfamilies[2].firstnumber + buttonfamilies[2].countx * buttonfamilies[2].county - 1 == 130);
static_assert(buttonfamilies[6].firstnumber + buttonfamilies[6].countx * buttonfamilies[6].county - 1 == 164);

}  // namespace

std::span<const buttonfamily> allbuttonfamilies() { return buttonfamilies; }

}  // namespace tessaly

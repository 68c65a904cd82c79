// A palette file, and a panel painted with it.
#include "data/elements.h"
#include "fuzz/fuzz.h"
#include "render/painter.h"

using namespace tessaly;

void play(const std::string& input) {
    usualview();
    write("pals/fuzzed.pal", input);
    palname = "fuzzed";
    loadpalette();
    datafile = "st-panels-1or-full.txt";
    placemode = 1;
    readelements();
    paintsolids();
}

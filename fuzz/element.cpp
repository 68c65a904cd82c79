// An element file, placed in the way that its length chooses, and painted.
#include "data/elements.h"
#include "fuzz/fuzz.h"
#include "render/painter.h"

using namespace tessaly;

void play(const std::string& input) {
    usualview();
    write("datah/fuzzed.txt", input);
    datafile = "fuzzed.txt";
    placemode = input.size() % 6;
    readelements();
    paintsolids();
}

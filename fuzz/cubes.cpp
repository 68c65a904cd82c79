// An axis-cube file, along the axis that its length chooses, and painted.
#include "data/cubes.h"
#include "fuzz/fuzz.h"
#include "render/painter.h"

using namespace tessaly;

void play(const std::string& input) {
    constexpr void (*readers[])() = {readcubex, readcubey, readcubez};
    usualview();
    write("datah/fuzzed.txt", input);
    datafile = "fuzzed.txt";
    readers[input.size() % 3]();
    paintsolids();
}

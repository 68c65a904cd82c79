// A transformation script behind the sections of a shipped scene.
#include "data/elements.h"
#include "fuzz/fuzz.h"

using namespace tessaly;

void play(const std::string& input) {
    const std::string scene = filebytes("datah\\st-axes.txt", "scene");
    write("datah/fuzzed.txt", scene.substr(0, scene.rfind("TRAN")) + input);
    usualview();
    datafile = "fuzzed.txt";
    placemode = 0;
    readelements();
}

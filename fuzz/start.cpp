// A start file, with the shipped start groups beside it.
#include "fuzz/fuzz.h"

using namespace tessaly;

void play(const std::string& input) {
    write("datah/start.txt", input);
    clickcontrol(startprogrambtn);
    clickcontrol(groupbtn);
}

// A view record, retrieved, and the view steps that go on from it.
#include "fuzz/fuzz.h"

using namespace tessaly;

void play(const std::string& input) {
    clickcontrol(startprogrambtn);
    write("bmps/view.txt", input);
    clickcontrol(retrieveimagetbtn);
    pickitem(bmplistbox, 0);
    clickcontrol(displayimagebtn);
    for (control* step : {&vertfocusplusbtn, &horizinc, &rotleftbtn}) clickcontrol(*step);
    clickcontrol(cventerbtn);
}

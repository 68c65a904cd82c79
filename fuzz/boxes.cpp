// What is typed into the boxes, a line each, and what is done with it: each byte of the last line is a press of a
// button, or a pick from a list, that is in reach.
#include "fuzz/fuzz.h"

#include <sstream>
#include <vector>

using namespace tessaly;

namespace {

std::string nextline(std::istringstream& input) {
    std::string line;
    std::getline(input, line);
    return leavesfolder(line) ? "" : line;
}

void act(std::size_t choice) {
    std::vector<control*> reached;
    for (const window* w : allwindows())
        for (control* c : w->controls) {
            const bool list = c->kind == controlkind::list || c->kind == controlkind::filelist;
            const bool button = c->kind == controlkind::button || c->kind == controlkind::picturebutton;
            if (w->shown && c->shown && (button || (list && !c->items.empty()))) reached.push_back(c);
        }
    control& c = *reached[choice % reached.size()];
    c.items.empty() ? clickcontrol(c) : pickitem(c, static_cast<int>(choice % c.items.size()));
}

}  // namespace

void play(const std::string& input) {
    clickcontrol(startprogrambtn);
    std::istringstream lines(input);
    for (control* box : {&perptxtx, &perptxty, &perptxtz, &focustxtx, &focustxty, &focustxtz, &magtxt, &verttxt,
                         &horiztxt, &floor, &writefilebox, &wiresolid, &panelsnipper, &capbox})
        typetext(*box, nextline(lines));
    for (const char choice : nextline(lines))
        if (!programended) act(static_cast<unsigned char>(choice));
}

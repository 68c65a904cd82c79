// A line each for windows, controls and scalars.

#include "tools/play_state.h"

#include "core/controls.h"
#include "core/world.h"
#include "tools/play_line.h"

namespace tessaly {

namespace {

std::string visibility(bool shown) { return shown ? " shown" : " hidden"; }

std::string statetext(const value& v) {
    if (v.empty()) return "empty";
    return v.isnumber() ? shortesttext(v) : inquotes(v.text());
}

}  // namespace

std::vector<stateline> programstate() {
    std::vector<stateline> state;
    for (const window* w : allwindows()) state.push_back({std::string("window ") + w->name, visibility(w->shown), ""});
    for (const window* w : allwindows())
        for (const control* c : w->controls)
            state.push_back(
                {"control " + c->name, visibility(c->shown), ' ' + inquotes(islist(*c) ? selectedtext(*c) : c->text)});
    for (const scalar& s : scalars())
        if (s.reported) state.push_back({"value " + s.name, "", ' ' + statetext(*s.held)});
    return state;
}

}  // namespace tessaly

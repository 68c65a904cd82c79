// Describes windows, controls and scalars, each by an item of the state or a line of the layout.

#include "player/programstate.h"

#include "core/controls.h"
#include "core/world.h"
#include "player/checksum.h"
#include "player/scriptline.h"

namespace tessaly {

namespace {

std::string_view visibility(bool shown) { return shown ? "shown" : "hidden"; }

std::string statetext(const control& c) { return inquotes(islist(c) ? selectedtext(c) : c.text); }

std::string sizetext(int width, int height) { return std::to_string(width) + 'x' + std::to_string(height); }

std::string colourtext(colour c) {
    return " colour " + std::to_string(c.red) + ',' + std::to_string(c.green) + ',' + std::to_string(c.blue);
}

// Returns the first line of a help page, and the size and checksum of the page.
std::string pagetext(const std::string& text) {
    checksum sum;
    sum.add(text);
    return ' ' + inquotes(text.substr(0, text.find('\n'))) + "... " + std::to_string(text.size()) + " bytes " +
           sum.shorttext();
}

std::string layoutof(const window& w) {
    return std::string(w.name) + ' ' + inquotes(w.title) + ' ' + sizetext(w.widthtwips, w.heighttwips) +
           colourtext(w.background);
}

std::string layoutof(const control& c) {
    std::string line = "  " + c.name + ' ' + std::to_string(c.bounds.left) + ',' + std::to_string(c.bounds.top) + ' ' +
                       sizetext(c.bounds.width, c.bounds.height);
    if (!c.shown) line += " hidden";
    if (c.background) line += colourtext(*c.background);
    if (c.kind == controlkind::page)
        line += pagetext(c.text);
    else if (!c.text.empty())
        line += ' ' + inquotes(c.text);
    if (c.elementnumber > 0) line += " number " + std::to_string(c.elementnumber);
    if (!c.tooltip.empty()) line += " tip " + inquotes(tooltipof(c));
    if (!c.accessiblename.empty()) line += " accessible " + inquotes(c.accessiblename);
    for (const std::string& item : c.items) line += " item " + inquotes(item);
    return line;
}

// Returns whether two controls are buttons of the same button family, such as "postx0y16" and "postx0y208".
bool samefamily(const control& a, const control& b) {
    return a.elementnumber > 0 && a.name.substr(0, a.name.find('x')) == b.name.substr(0, b.name.find('x'));
}

}  // namespace

std::string statetext(const value& v) {
    if (v.empty()) return "empty";
    return v.isnumber() ? shortesttext(v) : inquotes(v.text());
}

std::vector<stateitem> programstate() {
    std::vector<stateitem> state;
    for (const window* w : allwindows()) state.push_back({"window", w->name, visibility(w->shown), ""});
    for (const window* w : allwindows())
        for (const control* c : w->controls) state.push_back({"control", c->name, visibility(c->shown), statetext(*c)});
    for (const scalar& s : scalars())
        if (s.recorded) state.push_back({"value", s.name, "", statetext(*s.variable)});
    return state;
}

std::vector<std::string> programlayout() {
    std::vector<std::string> layout;
    for (const window* w : allwindows()) {
        layout.push_back(layoutof(*w));
        for (std::size_t i = 0; i < w->controls.size(); ++i) {
            const control& c = *w->controls[i];
            const bool between = i > 0 && i + 1 < w->controls.size() && samefamily(*w->controls[i - 1], c) &&
                                 samefamily(c, *w->controls[i + 1]);
            if (!between) layout.push_back(layoutof(c));
        }
    }
    return layout;
}

}  // namespace tessaly

// A line each for windows, controls and scalars; tables by their checksums, or a part of one.

#include "player/programstate.h"

#include "core/controls.h"
#include "core/world.h"
#include "player/scriptline.h"

#include <algorithm>

namespace tessaly {

namespace {

std::string visibility(bool shown) { return shown ? " shown" : " hidden"; }

std::string statetext(const value& v) {
    if (v.empty()) return "empty";
    return v.isnumber() ? shortesttext(v) : inquotes(v.text());
}

std::string colourtext(colour c) {
    return " colour " + std::to_string(c.red) + ',' + std::to_string(c.green) + ',' + std::to_string(c.blue);
}

std::string layoutof(const control& c) {
    std::string told = "  " + c.name + ' ' + std::to_string(c.bounds.left) + ',' + std::to_string(c.bounds.top) + ' ' +
                       std::to_string(c.bounds.width) + 'x' + std::to_string(c.bounds.height);
    if (c.back) told += colourtext(*c.back);
    if (c.elementnumber > 0) told += " number " + std::to_string(c.elementnumber);
    if (!c.tooltip.empty()) told += " tip " + inquotes(c.tooltip);
    if (!c.accessiblename.empty()) told += " spoken " + inquotes(c.accessiblename);
    for (const std::string& item : c.items) told += ' ' + inquotes(item);
    return told;
}

checksum sumof(const tablebase& t) {
    checksum sum;
    for (const value& v : t.elements()) {
        if (v.isnumber())
            sum.addword(std::bit_cast<std::uint64_t>(v + 0.0));
        else
            sum.add(inquotes(v.text()));
    }
    return sum;
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

std::vector<std::string> programlayout() {
    std::vector<std::string> layout;
    for (const window* w : allwindows()) {
        layout.push_back(std::string(w->name) + ' ' + inquotes(w->title) + ' ' + std::to_string(w->widthtwips) + 'x' +
                         std::to_string(w->heighttwips) + colourtext(w->back));
        for (const control* c : w->controls) layout.push_back(layoutof(*c));
    }
    return layout;
}

std::vector<tablesum> tablesums() {
    std::vector<tablesum> sums;
    for (const tablebase* t = tablebase::first; t != nullptr; t = t->next) sums.push_back({t->name, sumof(*t)});
    std::sort(sums.begin(), sums.end(), [](const tablesum& a, const tablesum& b) { return a.name < b.name; });
    return sums;
}

std::optional<std::string> tabletext(std::string_view name, std::size_t from, std::size_t to) {
    const tablebase* t = tablebase::first;
    while (t != nullptr && t->name != name) t = t->next;
    if (t == nullptr) return std::nullopt;
    const auto elements = t->elements();
    if (to >= elements.size()) return std::nullopt;
    std::string text;
    for (std::size_t i = from; i <= to; ++i) text += ' ' + statetext(elements[i]);
    return text;
}

}  // namespace tessaly

// The windows and the named controls with their initial state, and the operations on them.

#include "core/controls.h"

#include "core/textfiles.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace tessaly {

namespace {

constexpr std::nullopt_t nocolour = std::nullopt;
constexpr colour grey{192, 192, 192};
constexpr colour darkgrey{64, 64, 64};
constexpr colour red{255, 0, 0};
constexpr colour white{255, 255, 255};

std::deque<control> addedcontrols;  // does not move its elements when it grows

}  // namespace

// clang-format off
window startform   {"startform",    "Tessaly Girder and Panel", 12540,  8520, darkgrey};
window vistaplan   {"vistaplan",    "Tessaly Girder and Panel", 15330, 10605, grey};
window layoutgirder{"layoutgirder", "Layout Girders",            9255,  6855, {255, 255, 192}};
window layoutpanels{"layoutpanels", "Panels Layout",             7680,  6240, {192, 192, 255}};
window layoutroof  {"layoutroof",   "Roof Layout",               6645,  4935, {255, 128, 128}};
window easyviews   {"easyviews",    "Easy views",               14745, 10515, {192, 192, 255}};
window instructions{"instructions", "Tessaly Panel and Girder", 19200, 12990, {177, 199, 228}};
// clang-format on

#define CONTROL(parent, kind, name, left, top, width, height, text, shown, background, tooltip, accessiblename)        \
    control name;
#include "core/controls.def"
#undef CONTROL

const std::vector<window*>& allwindows() {
    static const std::vector<window*> windows{&startform,  &vistaplan, &layoutgirder, &layoutpanels,
                                              &layoutroof, &easyviews, &instructions};
    return windows;
}

boxtint tintof(const control& box) {
    if (box.warningof && box.warningof(box.text)) return boxtint::warning;
    return box.programtext && *box.programtext != box.text ? boxtint::edited : boxtint::none;
}

std::string tooltipof(const control& c) {
    switch (tintof(c)) {
    case boxtint::warning: return c.tooltip + "; " + c.warningof(c.text);
    case boxtint::edited: return c.tooltip + "; not in force before SET (F5)";
    case boxtint::none: break;
    }
    return c.tooltip + c.tooltipsuffix;
}

void resetcontrols() {
    addedcontrols.clear();
    for (window* w : allwindows()) {
        w->shown = false;
        w->raiseorder = 0;
        w->controls.clear();
        w->openedby = nullptr;
    }
    const auto resetcontrol = [](control& c, control initial) {
        c = std::move(initial);
        c.parent->controls.push_back(&c);
    };
    // clang-format off
#define CONTROL(parent, kind, name, left, top, width, height, text, shown, background, tooltip, accessiblename) \
    resetcontrol(name, {&parent, controlkind::kind, #name, {left, top, width, height}, text, shown, background, tooltip, accessiblename});
    // clang-format on
#include "core/controls.def"
#undef CONTROL
    usedcontrol = wantedfocus = nullptr;
    programended = false;
}

void addcontrol(control added) {
    addedcontrols.push_back(std::move(added));
    addedcontrols.back().parent->controls.push_back(&addedcontrols.back());
}

control* findcontrol(std::string_view name) {
    for (const window* w : allwindows())
        for (control* c : w->controls)
            if (c->name == name) return c;
    return nullptr;
}

window* findwindow(std::string_view name) {
    for (window* w : allwindows())
        if (w->name == name) return w;
    return nullptr;
}

const std::string& selectedtext(const control& list) {
    static const std::string nothing;
    const auto index = static_cast<std::size_t>(list.selected);
    return list.selected >= 0 && index < list.items.size() ? list.items[index] : nothing;
}

bool opensshownwindow(const control& c) {
    const auto& windows = allwindows();
    return std::any_of(windows.begin(), windows.end(), [&c](const window* w) { return w->shown && w->openedby == &c; });
}

void showwindow(window& w) {
    static int showings = 0;
    w.shown = true;
    w.raiseorder = ++showings;
}

void show(control& c) {
    c.shown = true;
    if (usedcontrol == nullptr || usedcontrol == &c) return;
    c.openedby = usedcontrol;
    if (islist(c)) wantedfocus = &c;
}

void clickcontrol(control& c) {
    usedcontrol = &c;
    wantedfocus = nullptr;
    if (c.run) c.run();
}

void pickitem(control& c, int item) {
    c.selected = item;
    if (c.kind == controlkind::combobox) c.text = selectedtext(c);
    clickcontrol(c);
}

void writebox(control& box, std::string text) {
    box.text = std::move(text);
    box.programtext = box.text;
}

void setfolder(control& filelist, std::string_view folder) {
    filelist.folder = folder;
    refresh(filelist);
}

void refresh(control& filelist) {
    filelist.items = filesin(filelist.folder);
    filelist.selected = -1;
}

control* focusafter(const control& c) {
    constexpr int maxsteps = 8;  // controls that show each other form a ring
    control* opener = c.openedby;
    for (int step = 0; opener != nullptr && !opener->shown && step < maxsteps; ++step) opener = opener->openedby;
    return opener != nullptr && opener->shown ? opener : nullptr;
}

}  // namespace tessaly

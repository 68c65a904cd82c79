// The commands of a script, a row each in the table at the end.
// A control is used only where a user could reach it: in a window that is shown, and shown itself.

#include "tools/play_commands.h"

#include "core/controls.h"
#include "core/failure.h"
#include "core/world.h"
#include "windows/handlers.h"
#include "windows/picturefile.h"

#include <algorithm>
#include <cstdio>

namespace tessaly {

loggedsurface playedsurface(897, 581);

namespace {

bool islist(const control& c) { return c.kind == controlkind::list || c.kind == controlkind::filelist; }

std::string nameof(scriptline& line) {
    const std::string name(line.word());
    if (name.empty()) throw scripterror("a name was expected");
    return name;
}

// The control of the next word, which must be one of the kinds that the action works on and in a user's reach.
control& reachablecontrol(scriptline& line, std::initializer_list<controlkind> kinds, const char* wanted) {
    const std::string name = nameof(line);
    control* const c = findcontrol(name);
    if (c == nullptr) throw scripterror("there is no control " + name);
    if (std::find(kinds.begin(), kinds.end(), c->kind) == kinds.end()) throw scripterror(name + " is not " + wanted);
    if (!c->in->shown) throw scripterror(name + " is in the window " + c->in->name + ", which is hidden");
    if (!c->shown) throw scripterror(name + " is hidden");
    return *c;
}

void click(scriptline& line) {
    control& c = reachablecontrol(line, {controlkind::button, controlkind::picturebutton}, "a button");
    line.expectend();
    clickcontrol(c);
}

void pick(scriptline& line) {
    control& c = reachablecontrol(line, {controlkind::list, controlkind::filelist, controlkind::combobox}, "a list");
    const std::string text = line.quoted();
    line.expectend();
    const auto item = std::find(c.items.begin(), c.items.end(), text);
    if (item == c.items.end()) throw scripterror(c.name + " has no entry " + inquotes(text));
    pickitem(c, static_cast<int>(item - c.items.begin()));
}

void type(scriptline& line) {
    control& c = reachablecontrol(line, {controlkind::textbox, controlkind::combobox}, "a box to type into");
    const std::string text = line.quoted();
    line.expectend();
    typetext(c, text);
}

void close(scriptline& line) {
    const std::string name = nameof(line);
    line.expectend();
    window* const w = findwindow(name);
    if (w == nullptr) throw scripterror("there is no window " + name);
    if (!w->shown) throw scripterror("the window " + name + " is hidden");
    closewindow(*w);
}

void writeline(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::putchar('\n');
}

std::string statetext(const value& v) {
    if (v.empty()) return "empty";
    return v.isnumber() ? shortesttext(v) : inquotes(v.text());
}

void showstate(scriptline& line) {
    line.expectend();
    const auto visibility = [](bool shown) { return shown ? " shown" : " hidden"; };
    for (const window* w : allwindows()) writeline(std::string("window ") + w->name + visibility(w->shown));
    for (const window* w : allwindows())
        for (const control* c : w->controls)
            writeline("control " + c->name + visibility(c->shown) + ' ' +
                      inquotes(islist(*c) ? selectedtext(*c) : c->text));
    for (const scalar* s = scalarsbegin(); s != scalarsend(); ++s)
        if (s->reported) writeline(std::string("value ") + s->name + ' ' + statetext(*s->held));
}

void lines(scriptline& line) {
    playedsurface.endlog();
    if (line.atend()) return;
    const std::string path = line.filename();
    if (!playedsurface.startlog(path)) throw scripterror("the file " + path + " cannot be written");
}

void picture(scriptline& line) {
    const std::string path = line.filename();
    try {
        savepicture(playedsurface.image, path);
    } catch (const failure& f) {
        throw scripterror(f.report);  // the player's own file: nothing of the program failed
    }
}

void say(scriptline& line) { writeline(std::string(line.rest())); }

struct command {
    std::string_view name;
    void (*obey)(scriptline&);
};
constexpr command commands[] = {
    {"click", click},    {"pick", pick},   {"type", type},       {"close", close},
    {"show", showstate}, {"lines", lines}, {"picture", picture}, {"say", say},
};

}  // namespace

void obeyline(std::string_view text) {
    scriptline line(text);
    const std::string_view name = line.word();
    if (name.empty() || name.front() == '#') return;
    for (const command& c : commands)
        if (c.name == name) return c.obey(line);
    throw scripterror("there is no command " + std::string(name));
}

}  // namespace tessaly

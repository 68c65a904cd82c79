// The commands of a script, a row each in the table at the end.
// A control is used only where a user could reach it: in a window that is shown, and shown itself.

#include "player/commands.h"

#include "core/controls.h"
#include "core/failure.h"
#include "picturefiles/picturefile.h"
#include "player/programstate.h"
#include "player/sessionrecord.h"
#include "windows/handlers.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tessaly {

loggedsurface playedsurface(viewportwidth, viewportheight), playedstrip(progresswidth, progressheight);

namespace {

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

// A key that acts from any window.
void key(scriptline& line) {
    const std::string name = nameof(line);
    line.expectend();
    const auto keys = programkeys();
    const auto known = std::find_if(keys.begin(), keys.end(), [&](const programkey& k) { return k.name == name; });
    if (known == keys.end()) throw scripterror("there is no key " + name);
    if (!vistaplan.shown) throw scripterror("the main window is not there yet");
    known->press();
}

void writeline(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::putchar('\n');
}

// On standard output, and under the step played last in the session's record.
void tell(const std::string& text) {
    writeline(text);
    recordnote(text);
}

void showstate(scriptline& line) {
    line.expectend();
    for (const stateline& state : programstate()) writeline(state.name + state.visibility + state.text);
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
        throw scripterror(f.report());  // the player's own file: nothing of the program failed
    }
}

// A file that a user may take in hand: below the working folder.
std::filesystem::path ownfile(const std::string& name) {
    const std::filesystem::path path = std::filesystem::path(name).lexically_normal();
    if (path.empty() || path.is_absolute() || *path.begin() == "..")
        throw scripterror(name + " is not in the working folder");
    return path;
}

// As in an editor: the first place of a text is put otherwise; the whole file where the text is empty.
void edit(scriptline& line) {
    const auto path = ownfile(nameof(line));
    const std::string taken = line.quoted(), put = line.quoted();
    line.expectend();
    std::string bytes;
    if (!taken.empty()) {
        std::ifstream in(path, std::ios::binary);
        bytes.assign(std::istreambuf_iterator(in), {});
        if (bytes.find(taken) == std::string::npos) throw scripterror(path.string() + " has no " + inquotes(taken));
        bytes.replace(bytes.find(taken), taken.size(), put);
    }
    if (!(std::ofstream(path, std::ios::binary) << (taken.empty() ? put : bytes)).flush())
        throw scripterror(path.string() + " cannot be written");
}

void deletefile(scriptline& line) {
    const auto path = ownfile(line.filename());
    std::error_code failed;
    if (!std::filesystem::remove(path, failed)) throw scripterror(path.string() + " cannot be deleted");
}

// A line at which the program is to fail: told in the record, and the program is started anew as by a user.
void fails(scriptline& line) {
    const std::string_view tried = line.rest();
    if (scriptline(tried).word() == "fails") throw scripterror("once is enough");
    try {
        obeyline(tried);
    } catch (const failure&) {
        playedsurface.image.clear();
        startprogram();
        return recordrestart();
    }
    throw scripterror("the program did not fail");
}

std::size_t indexin(std::string_view word) {
    std::size_t index = 0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), index);
    if (word.empty() || read.ptr != word.data() + word.size() || read.ec != std::errc())
        throw scripterror("an index was expected");
    return index;
}

// A part of a table, into the record as well: what can only be seen by its checksum otherwise.
void table(scriptline& line) {
    const std::string name = nameof(line);
    const std::size_t from = indexin(line.word()), to = indexin(line.word());
    line.expectend();
    const auto text = tabletext(name, from, to);
    if (!text) throw scripterror("there is no table " + name + " that goes so far");
    const std::string told = name + ' ' + std::to_string(from) + ".." + std::to_string(to) + ':' + *text;
    tell(told);
}

// How windows and controls are laid out: a line each, into the record as well.
void layout(scriptline& line) {
    line.expectend();
    for (const std::string& told : programlayout()) tell(told);
}

void record(scriptline& line) {
    const std::string path = line.filename();
    if (!startrecord(path)) throw scripterror("the file " + path + " cannot be written");
}

void say(scriptline& line) { writeline(std::string(line.rest())); }

struct command {
    std::string_view name;
    void (*obey)(scriptline&);
    bool (*keep)(std::string_view);  // of what a user does: writes it into the session's record
};
constexpr command commands[] = {
    // clang-format off
    {"click",   click,     recordstep},
    {"pick",    pick,      recordstep},
    {"type",    type,      recordstep},
    {"close",   close,     recordstep},
    {"key",     key,       recordstep},
    {"edit",    edit,      recordoutside},
    {"delete",  deletefile, recordoutside},
    {"fails",   fails,     nullptr},
    {"show",    showstate, nullptr},
    {"table",   table,     nullptr},
    {"layout",  layout,    nullptr},
    {"lines",   lines,     nullptr},
    {"picture", picture,   nullptr},
    {"record",  record,    nullptr},
    {"say",     say,       nullptr},
    // clang-format on
};

void expectwritten(bool kept) {
    if (!kept) throw scripterror("the record of the session cannot be written");
}

}  // namespace

void obeyline(std::string_view text) {
    scriptline line(text);
    const std::string_view name = line.word();
    if (name.empty() || name.front() == '#') return;
    const auto known =
        std::find_if(std::begin(commands), std::end(commands), [name](const command& c) { return c.name == name; });
    if (known == std::end(commands)) throw scripterror("there is no command " + std::string(name));
    try {
        known->obey(line);
    } catch (const failure& f) {
        expectwritten(recordfailure(text, f.report()));
        throw;
    }
    if (known->keep != nullptr) expectwritten(known->keep(text));
}

}  // namespace tessaly

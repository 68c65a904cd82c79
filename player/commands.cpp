// The commands of a script; the table at the end has a row for each command. A command can use a control only if a user
// could, so the control and its window must be shown.

#include "player/commands.h"

#include "core/controls.h"
#include "core/failure.h"
#include "picturefiles/picturefile.h"
#include "player/loggedsurface.h"
#include "player/programstate.h"
#include "player/scriptline.h"
#include "player/sessionrecord.h"
#include "player/tablechanges.h"
#include "windows/handlers.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tessaly {

namespace {

std::string readname(scriptline& line) {
    std::string name(line.takeword());
    if (name.empty()) throw scripterror("a name was expected");
    return name;
}

// Returns the control that the next word names. It must be shown and of one of these kinds.
control& reachablecontrol(scriptline& line, std::initializer_list<controlkind> kinds, const char* wanted) {
    const std::string name = readname(line);
    control* const c = findcontrol(name);
    if (c == nullptr) throw scripterror("there is no control " + name);
    if (std::find(kinds.begin(), kinds.end(), c->kind) == kinds.end()) throw scripterror(name + " is not " + wanted);
    if (!c->parent->shown) throw scripterror(name + " is in the window " + c->parent->name + ", which is hidden");
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
    const std::string text = line.takequoted();
    line.expectend();
    const auto item = std::find(c.items.begin(), c.items.end(), text);
    if (item == c.items.end()) throw scripterror(c.name + " has no entry " + inquotes(text));
    pickitem(c, static_cast<int>(item - c.items.begin()));
}

void type(scriptline& line) {
    control& c = reachablecontrol(line, {controlkind::textbox, controlkind::combobox}, "a box to type into");
    const std::string text = line.takequoted();
    line.expectend();
    c.text = text;
}

void close(scriptline& line) {
    const std::string name = readname(line);
    line.expectend();
    window* const w = findwindow(name);
    if (w == nullptr) throw scripterror("there is no window " + name);
    if (!w->shown) throw scripterror("the window " + name + " is hidden");
    closewindow(*w);
}

// Presses a key that acts in any window.
void key(scriptline& line) {
    const std::string name = readname(line);
    line.expectend();
    const auto keys = programkeys();
    const auto known = std::find_if(keys.begin(), keys.end(), [&](const programkey& k) { return k.name == name; });
    if (known == keys.end()) throw scripterror("there is no key " + name);
    if (!vistaplan.shown) throw scripterror("the main window is hidden");
    known->press();
}

void writeline(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::putchar('\n');
}

void expectwritten(bool written) {
    if (!written) throw scripterror("the record of the session cannot be written");
}

// Writes a line to standard output, and to the record of the session under the step played last.
void writenote(const std::string& text) {
    writeline(text);
    expectwritten(recordnote(text));
}

void showstate(scriptline& line) {
    line.expectend();
    for (const stateitem& item : programstate()) {
        std::string text(item.kind);
        for (const std::string_view part : {std::string_view(item.name), item.visibility, std::string_view(item.text)})
            if (!part.empty()) text.append(" ").append(part);
        writeline(text);
    }
}

void lines(scriptline& line) {
    if (!playedsurface.endlog()) throw scripterror("the file of the drawn lines cannot be written");
    if (line.atend()) return;
    const std::string path = line.takefilename();
    if (!playedsurface.startlog(path)) throw scripterror("the file " + path + " cannot be written");
}

void picture(scriptline& line) {
    const std::string path = line.takefilename();
    try {
        savepicture(playedsurface.image, path);
    } catch (const failure& f) {
        throw scripterror(f.what());  // the player failed, not the program
    }
}

// Returns the path of a file that scripts may change: one in the working folder.
std::filesystem::path scratchfile(const std::string& name) {
    std::filesystem::path path = std::filesystem::path(name).lexically_normal();
    if (path.empty() || path.is_absolute() || *path.begin() == "..")
        throw scripterror(name + " is not in the working folder");
    return path;
}

std::string readfile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator(in), {}};
}

void writefile(const std::filesystem::path& path, const std::string& bytes) {
    if (!(std::ofstream(path, std::ios::binary) << bytes).flush())
        throw scripterror(path.string() + " cannot be written");
}

struct editedfile {
    std::filesystem::path path;
    std::string before;
};

// Reads FILE "TEXT" "NEW" and replaces the first TEXT in the file with NEW, or the complete file if TEXT is empty.
editedfile editfile(scriptline& line) {
    const auto path = scratchfile(readname(line));
    const std::string text = line.takequoted(), replacement = line.takequoted(), before = readfile(path);
    const std::size_t at = before.find(text);
    if (at == std::string::npos) throw scripterror(path.string() + " has no " + inquotes(text));
    writefile(path, text.empty() ? replacement : std::string(before).replace(at, text.size(), replacement));
    return {path, before};
}

void edit(scriptline& line) {
    editfile(line);
    line.expectend();
}

void deletefile(scriptline& line) {
    const auto path = scratchfile(line.takefilename());
    std::error_code failed;
    if (!std::filesystem::remove(path, failed)) throw scripterror(path.string() + " cannot be deleted");
}

void playline(std::string_view text, std::string_view recorded);

// Plays the rest of the line. Throws scripterror unless it ends the program with a failure.
void playfailing(scriptline& line) {
    try {
        playline(line.takerest(), line.text());
    } catch (const failure&) {
        return;
    }
    throw scripterror("the program did not fail");
}

void restart() {
    playedsurface.image.clear();
    startprogram();
    recordrestart();
}

void fails(scriptline& line) {
    playfailing(line);
    restart();
}

void mistake(scriptline& line) {
    const editedfile file = editfile(line);
    playfailing(line);
    writefile(file.path, file.before);
    restart();
}

// Opens the main window; the record does not show what changes.
void start(scriptline& line) {
    line.expectend();
    scriptline button("startprogrambtn");
    click(button);
}

std::size_t readindex(scriptline& line) {
    const std::string_view word = line.takeword();
    std::size_t index = 0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), index);
    if (word.empty() || read.ptr != word.data() + word.size() || read.ec != std::errc())
        throw scripterror("an index was expected");
    return index;
}

// Writes a part of a table, also to the record. Other steps record only checksums of tables.
void table(scriptline& line) {
    const std::string name = readname(line);
    const std::size_t from = readindex(line), to = readindex(line);
    line.expectend();
    const auto text = tabletext(name, from, to);
    if (!text) throw scripterror("there is no table " + name + " with these elements");
    writenote(name + ' ' + std::to_string(from) + ".." + std::to_string(to) + ':' + *text);
}

void layout(scriptline& line) {
    line.expectend();
    for (const std::string& text : programlayout()) writenote(text);
}

void record(scriptline& line) {
    const std::string path = line.takefilename();
    if (!startrecord(path)) throw scripterror("the file " + path + " cannot be written");
}

void say(scriptline& line) { writeline(std::string(line.takerest())); }

struct command {
    std::string_view name;
    void (*run)(scriptline&);
    bool (*record)(std::string_view);  // records the step; nullptr: the step is not recorded
};
constexpr command commands[] = {
    // clang-format off
    {"click",   click,      recordstep},
    {"pick",    pick,       recordstep},
    {"type",    type,       recordstep},
    {"close",   close,      recordstep},
    {"key",     key,        recordstep},
    {"start",   start,      recordwithoutchanges},
    {"edit",    edit,       recordwithoutchanges},
    {"delete",  deletefile, recordwithoutchanges},
    {"fails",   fails,      nullptr},
    {"mistake", mistake,    nullptr},
    {"show",    showstate,  nullptr},
    {"table",   table,      nullptr},
    {"layout",  layout,     nullptr},
    {"lines",   lines,      nullptr},
    {"picture", picture,    nullptr},
    {"record",  record,     nullptr},
    {"say",     say,        nullptr},
    // clang-format on
};

// Plays a line. recorded is the line that the record shows for it.
void playline(std::string_view text, std::string_view recorded) {
    scriptline line(text);
    const std::string_view name = line.takeword();
    if (name.empty() || name.front() == '#') return;
    const auto known =
        std::find_if(std::begin(commands), std::end(commands), [name](const command& c) { return c.name == name; });
    if (known == std::end(commands)) throw scripterror("there is no command " + std::string(name));
    try {
        known->run(line);
    } catch (const failure& f) {
        expectwritten(recordfailure(recorded, f.what()));
        throw;
    }
    if (known->record != nullptr) expectwritten(known->record(recorded));
}

}  // namespace

void playline(std::string_view text) { playline(text, text); }

}  // namespace tessaly

// Compares the program's state, its tables and the files of the working folder before and after each step, and counts
// the lines drawn.

#include "player/sessionrecord.h"

#include "core/controls.h"
#include "player/loggedsurface.h"
#include "player/programstate.h"
#include "player/scriptline.h"
#include "player/tablechanges.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace tessaly {

namespace {

constexpr std::size_t maxquoted = 400;  // bytes of a file; of a longer file the size and the checksum are written

using filesbypath = std::map<std::string, std::string>;

struct snapshot {
    std::vector<stateitem> state;
    tablesnapshot tables;
    filesbypath files;
    const control* focus;
};

std::ofstream record;
std::optional<snapshot> before;

filesbypath sessionfiles() {
    filesbypath files;
    for (const char* folder : {"bmps", "designs", "nonuser"}) {
        std::error_code missing;
        for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
            if (!entry.is_regular_file(missing)) continue;
            std::ifstream in(entry.path(), std::ios::binary);
            files[entry.path().generic_string()] = (std::ostringstream() << in.rdbuf()).str();
        }
    }
    return files;
}

snapshot takesnapshot() { return {programstate(), {}, sessionfiles(), wantedfocus}; }

// Writes a line of the record when it is destroyed: the kind of change, then the changes; nothing if there are none.
class changeline {
  public:
    explicit changeline(std::string_view itskind) : kind(itskind) {}
    ~changeline() {
        if (!changes.empty()) record << "  " << kind << ' ' << changes << '\n';
    }
    changeline(const changeline&) = delete;
    changeline& operator=(const changeline&) = delete;

    void add(std::string_view change) { changes.append(changes.empty() ? "" : ", ").append(change); }

  private:
    std::string_view kind;
    std::string changes;
};

// Writes the changes of windows, controls and scalars, except a typed or picked text, with which the step itself ends.
void writestate(std::string_view step, const snapshot& after) {
    changeline values("values"), texts("texts"), hidden("hidden"), shown("shown");  // written in reverse order
    for (std::size_t i = 0; i < after.state.size(); ++i) {
        const stateitem &was = before->state[i], &is = after.state[i];
        if (was.visibility != is.visibility) (is.visibility == "shown" ? shown : hidden).add(is.name);
        const std::string text = is.name + ' ' + is.text;
        if (was.text != is.text && !step.ends_with(text)) (is.kind == "value" ? values : texts).add(text);
    }
}

void writelines() {
    const linetally viewport = playedsurface.taketally(), strip = playedstrip.taketally();
    changeline lines("lines"), picture("picture");
    if (!viewport.picture.empty()) picture.add("viewport " + viewport.picture);
    if (viewport.lines > 0) lines.add("viewport " + viewport.text());
    if (strip.lines > 0) lines.add("strip " + strip.text());
}

std::string filetext(std::string_view bytes) {
    if (bytes.size() <= maxquoted) return inquotes(bytes);
    checksum sum;
    sum.add(bytes);
    return std::to_string(bytes.size()) + " bytes " + sum.shorttext();
}

void writefiles(const filesbypath& after) {
    for (const auto& [path, bytes] : after) {
        const auto old = before->files.find(path);
        if (old == before->files.end())
            record << "  file " << path << " new " << filetext(bytes) << '\n';
        else if (old->second != bytes && bytes.starts_with(old->second))
            record << "  file " << path << " gained " << filetext(std::string_view(bytes).substr(old->second.size()))
                   << '\n';
        else if (old->second != bytes)
            record << "  file " << path << " is now " << filetext(bytes) << '\n';
    }
    for (const auto& [path, bytes] : before->files)
        if (!after.contains(path)) record << "  file " << path << " gone\n";
}

}  // namespace

bool startrecord(const std::string& path) {
    record = std::ofstream(path, std::ios::binary);
    recordrestart();
    return record.is_open();
}

bool recordnote(std::string_view line) { return !record.is_open() || (record << "  " << line << std::endl).good(); }

bool recordstep(std::string_view step) {
    if (!record.is_open()) return true;
    snapshot after = takesnapshot();
    record << step << '\n';
    writestate(step, after);
    changeline("tables").add(before->tables.changes(after.tables));
    if (after.focus != nullptr && after.focus != before->focus) record << "  focus " << after.focus->name << '\n';
    writelines();
    writefiles(after.files);
    before = std::move(after);
    return static_cast<bool>(record.flush());
}

void recordrestart() {
    if (!record.is_open()) return;
    for (loggedsurface* s : {&playedsurface, &playedstrip}) s->starttally();
    before = takesnapshot();
}

bool recordwithoutchanges(std::string_view step) {
    if (!record.is_open()) return true;
    record << step << '\n';
    recordrestart();
    return static_cast<bool>(record.flush());
}

bool recordfailure(std::string_view step, std::string_view report) {
    if (!record.is_open()) return true;
    filesbypath files = sessionfiles();
    record << step << '\n';
    writelines();
    writefiles(files);
    before->files = std::move(files);
    record << "  failure " << report << '\n';
    return static_cast<bool>(record.flush());
}

}  // namespace tessaly

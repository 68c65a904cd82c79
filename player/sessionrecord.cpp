// Before and after a step: the program's state, the lines drawn and the files of the working folder, compared.

#include "player/sessionrecord.h"

#include "core/controls.h"
#include "player/commands.h"
#include "player/programstate.h"
#include "player/scriptline.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace tessaly {

namespace {

constexpr std::size_t maxquoted = 400;  // bytes of a file that are written out; longer ones as length and checksum

using filesbypath = std::map<std::string, std::string>;

struct moment {
    std::vector<stateline> state;
    std::vector<tablesum> tables;
    filesbypath files;
    const control* focus;
};

std::ofstream record;
moment before;

filesbypath filesofsession() {
    filesbypath files;
    for (const char* folder : {"bmps", "designs", "nonuser"}) {
        std::error_code missing;
        for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
            std::ifstream in(entry.path(), std::ios::binary);
            if (entry.is_regular_file())
                files[entry.path().generic_string()] = (std::ostringstream() << in.rdbuf()).str();
        }
    }
    return files;
}

moment takemoment() { return {programstate(), tablesums(), filesofsession(), wantedfocus}; }

std::string told(std::string_view bytes) {
    if (bytes.size() <= maxquoted) return inquotes(bytes);
    checksum sum;
    sum.add(bytes);
    return std::to_string(bytes.size()) + " bytes " + sum.text();
}

// Of what is another than before, that which changed.
void writechangedstate(const moment& after) {
    std::map<std::string_view, const stateline*> was;
    for (const stateline& line : before.state) was[line.name] = &line;
    for (const stateline& is : after.state) {
        const stateline* const old = was[is.name];
        const bool shown = old == nullptr || old->visibility != is.visibility;
        const bool text = old == nullptr || old->text != is.text;
        if (shown || text) record << "  " << is.name << (shown ? is.visibility : "") << (text ? is.text : "") << '\n';
    }
}

void writechangedtables(const moment& after) {
    if (after.tables == before.tables) return;
    checksum all;
    std::string names;
    for (std::size_t i = 0; i < after.tables.size(); ++i) {
        all.add(after.tables[i].sum.text());
        if (after.tables[i] != before.tables[i]) names += ' ' + std::string(after.tables[i].name);
    }
    record << "  tables " << all.text() << names << '\n';
}

void writechangedfiles(const filesbypath& after) {
    for (const auto& [path, bytes] : after) {
        const auto old = before.files.find(path);
        if (old == before.files.end())
            record << "  file " << path << " new " << told(bytes) << '\n';
        else if (old->second != bytes && bytes.starts_with(old->second))
            record << "  file " << path << " gained " << told(std::string_view(bytes).substr(old->second.size()))
                   << '\n';
        else if (old->second != bytes)
            record << "  file " << path << " is now " << told(bytes) << '\n';
    }
    for (const auto& [path, bytes] : before.files)
        if (!after.contains(path)) record << "  file " << path << " gone\n";
}

void writelines(const char* name, loggedsurface& drawnon) {
    const linetally drawn = drawnon.taketally();
    if (!drawn.picture.empty()) record << "  picture " << name << ' ' << drawn.picture << '\n';
    if (drawn.lines > 0) record << "  lines " << name << ' ' << drawn.lines << ' ' << drawn.sum.text() << '\n';
}

}  // namespace

bool startrecord(const std::string& path) {
    for (loggedsurface* s : {&playedsurface, &playedstrip}) s->starttally();
    before = takemoment();
    record = std::ofstream(path, std::ios::binary);
    return record.is_open();
}

void recordnote(std::string_view line) {
    if (record.is_open()) record << "  " << line << std::endl;
}

bool recordstep(std::string_view step) {
    if (!record.is_open()) return true;
    moment after = takemoment();
    record << step << '\n';
    writechangedstate(after);
    writechangedtables(after);
    if (after.focus != nullptr && after.focus != before.focus) record << "  focus " << after.focus->name << '\n';
    writelines("viewport", playedsurface);
    writelines("strip", playedstrip);
    writechangedfiles(after.files);
    before = std::move(after);
    return static_cast<bool>(record.flush());
}

bool recordoutside(std::string_view step) {
    if (!record.is_open()) return true;
    filesbypath files = filesofsession();
    record << step << '\n';
    writelines("viewport", playedsurface);
    writelines("strip", playedstrip);
    writechangedfiles(files);
    before.files = std::move(files);
    return static_cast<bool>(record.flush());
}

bool recordfailure(std::string_view step, std::string_view report) {
    const bool written = recordoutside(step);
    recordnote("failure " + std::string(report));
    return written;
}

void recordrestart() {
    if (record.is_open()) before = takemoment();
}

}  // namespace tessaly

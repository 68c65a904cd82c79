// The scratch folder, the program in it, and design files of any length.

#include "bench/scene.h"

#include "building/designfiles.h"
#include "building/layouts.h"
#include "core/channels.h"
#include "core/world.h"
#include "windows/handlers.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace tessaly {

namespace fs = std::filesystem;

namespace {

fs::path startedin, scratch;
raster progress(17, 705);

control& named(const std::string& name) {
    control* const c = findcontrol(name);
    if (c == nullptr) throw std::logic_error("no control " + name);
    return *c;
}

// The positions of a kind of record, in the order of the layouts.
std::vector<const position*> positionsof(const char* kind) {
    std::vector<const position*> found;
    for (const position& p : allpositions())
        if (std::string(p.of->kind) == kind) found.push_back(&p);
    return found;
}

// Panels of one storey's height with eleven to sixteen faces: orange 1 and yellow 1, all four parts.
constexpr int panelcodes[] = {1, 10, 2, 11, 3, 12, 31, 34};

// The i-th record of a kind: its positions in turn, spread over the plan.
std::string recordof(const char* kind, std::size_t i) {
    const auto positions = positionsof(kind);
    const position& p = *positions[i * 29 % positions.size()];
    const int code = p.of->code < 0 ? panelcodes[i % std::size(panelcodes)] : p.of->code;
    return recordline({kind, p.number, p.middlex, p.middley, code, p.of->rotx, p.of->rotz, p.x, p.y, p.of->face, 64});
}

const char* kindof(design what, std::size_t i) {
    if (what == design::girders) return "girder";
    if (what == design::panels) return "panel";
    if (what == design::roofs) return "roof";
    return i % 10 == 9 ? "roof" : i % 2 == 0 ? "panel" : "girder";
}

}  // namespace

void enterscene() {
    startedin = fs::current_path();
    std::string name = (fs::temp_directory_path() / "tessaly-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no scratch folder");
    scratch = name;
    for (const char* data : {"datah", "pals"}) fs::copy(startedin / data, scratch / data);
    for (const char* made : {"designs", "bmps", "nonuser"}) fs::create_directory(scratch / made);
    fs::current_path(scratch);
}

void leavescene() {
    std::error_code ignored;
    fs::current_path(startedin);
    fs::remove_all(scratch, ignored);
}

void startbuilding(surface& on) {
    viewportsurface = &on;
    progresssurface = &progress;
    forgetchannels();
    startprogram();
    click("startprogrambtn");
}

void click(const std::string& name) { clickcontrol(named(name)); }

void pick(const std::string& list, const std::string& item) {
    control& c = named(list);
    for (std::size_t i = 0; i < c.items.size(); ++i)
        if (c.items[i] == item) return pickitem(c, static_cast<int>(i));
    throw std::logic_error(list + " has no item " + item);
}

void writedesign(const std::string& name, design what, int n) {
    std::ofstream out("designs/" + name, std::ios::binary);
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i) out << recordof(kindof(what, i), i);
}

void replaysingle(const char* button, const char* list, const std::string& name) {
    click(button);
    pick(list, name);
}

void replaycombined(const std::string& first, const std::string& second) {
    click("autosolidbtn");
    pick("autofile3", first);
    pick("autofile4", second);
}

}  // namespace tessaly

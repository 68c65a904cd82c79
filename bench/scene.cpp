// Starts the program, and writes design files of any length.

#include "bench/scene.h"

#include "bench/surfaces.h"
#include "building/layouts.h"
#include "building/records.h"
#include "core/textfiles.h"
#include "core/world.h"
#include "player/commands.h"
#include "windows/handlers.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace tessaly {

namespace fs = std::filesystem;

namespace {

raster progress(progresswidth, progressheight);

// Returns the positions of a kind of record, in the order of the layouts.
std::vector<const buttonposition*> positionsof(const char* kind) {
    std::vector<const buttonposition*> found;
    for (const buttonposition& p : allbuttonpositions())
        if (std::string(p.family->files.kind) == kind) found.push_back(&p);
    return found;
}

// Panels with eleven to sixteen faces: orange 1 and yellow 1, with each of the four snip parts.
constexpr int panelcodes[] = {1, 10, 2, 11, 3, 12, 31, 34};

// Returns record i of a kind. Successive records are spread over the plan.
std::string recordof(const char* kind, std::size_t i) {
    const auto positions = positionsof(kind);
    const buttonposition& p = *positions[i * 29 % positions.size()];
    const int code = p.family->code < 0 ? panelcodes[i % std::size(panelcodes)] : p.family->code;
    return recordline(
        {kind, p.number, p.middlex, p.middley, code, p.family->rotx, p.family->rotz, p.x, p.y, p.family->facecode, 64});
}

const char* mixedkind(std::size_t i) { return i % 10 == 9 ? "roof" : i % 2 == 0 ? "panel" : "girder"; }

// Returns the name of a design file of n records. The prefix selects the class of the file; the letters after it only
// make the name different for each n.
std::string designname(std::string prefix, std::size_t digitindex, int n, int onfloor) {
    prefix += {static_cast<char>('a' + n / 100), static_cast<char>('a' + n % 100 / 10)};
    prefix.resize(digitindex, 's');
    return prefix + std::to_string(onfloor % 10) + ".txt";
}

template <class kinds>
std::string designfile(const std::string& name, int n, kinds kindof) {
    if (fs::exists("designs/" + name)) return name;
    std::ofstream out("designs/" + name, std::ios::binary);
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i) out << recordof(kindof(i), i);
    return name;
}

std::unique_ptr<surface> surfaceof(method m) {
    if (m == method::qpainter) return std::make_unique<painterimage>();
    if (m == method::nodrawing) return std::make_unique<nosurface>();
    return std::make_unique<raster>(viewportwidth, viewportheight);
}

}  // namespace

std::string girdersfile(int n, int onfloor) {
    return designfile(designname("girds", 7, n, onfloor), n, [](std::size_t) { return "girder"; });
}

std::string panelsfile(int n, int onfloor) {
    return designfile(designname("pane", 6, n, onfloor), n, [](std::size_t) { return "panel"; });
}

std::string mixedfile(int n) { return designfile(designname("girdm", 7, n, 1), n, mixedkind); }

startedprogram::startedprogram(method m) : viewport(surfaceof(m)) {
    noshortcuts = m == method::plain || m == method::qpainter;
    viewportsurface = viewport.get();
    progresssurface = &progress;
    resetchannels();
    startprogram();
    for (const char* button : {"startprogrambtn", "postbeambtn", "orange1btn", "roofbtn"})
        playline(std::string("click ") + button);
    wiresolid.text = "solid";
}

startedprogram::~startedprogram() { noshortcuts = false; }

void replaywire(const std::string& file) {
    playline("click autowiresingle");
    playline("pick autofile \"" + file + '"');
}

void replaysolid(const std::string& file) {
    playline("click autosolidsingle");
    playline("pick autofile5 \"" + file + '"');
}

void replaycombined(const std::string& first, const std::string& second) {
    playline("click autosolidbtn");
    playline("pick autofile3 \"" + first + '"');
    playline("pick autofile4 \"" + second + '"');
}

}  // namespace tessaly

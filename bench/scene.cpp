// The scratch folder, the program in it, and design files of any length.

#include "bench/scene.h"

#include "bench/surfaces.h"
#include "building/layouts.h"
#include "building/records.h"
#include "core/textfiles.h"
#include "core/world.h"
#include "windows/handlers.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace tessaly {

namespace fs = std::filesystem;

namespace {

raster progress(progresswidth, progressheight);

control& named(const std::string& name) {
    control* const c = findcontrol(name);
    if (c == nullptr) throw std::logic_error("no control " + name);
    return *c;
}

// The positions of a kind of record, in the order of the layouts.
std::vector<const buttonposition*> positionsof(const char* kind) {
    std::vector<const buttonposition*> found;
    for (const buttonposition& p : allbuttonpositions())
        if (std::string(p.of->kind) == kind) found.push_back(&p);
    return found;
}

// Panels of eleven to sixteen faces: orange 1 and yellow 1, all four parts.
constexpr int panelcodes[] = {1, 10, 2, 11, 3, 12, 31, 34};

// The i-th record of a kind: its positions in turn, spread over the plan.
std::string recordof(const char* kind, std::size_t i) {
    const auto positions = positionsof(kind);
    const buttonposition& p = *positions[i * 29 % positions.size()];
    const int code = p.of->code < 0 ? panelcodes[i % std::size(panelcodes)] : p.of->code;
    return recordline({kind, p.number, p.middlex, p.middley, code, p.of->rotx, p.of->rotz, p.x, p.y, p.of->face, 64});
}

const char* mixedkind(std::size_t i) { return i % 10 == 9 ? "roof" : i % 2 == 0 ? "panel" : "girder"; }

// front's class of file, in which the floor's digit has its place; the letters before it are free and tell n.
std::string designname(std::string front, std::size_t digitat, int n, int onfloor) {
    front += {static_cast<char>('a' + n / 100), static_cast<char>('a' + n % 100 / 10)};
    front.resize(digitat, 's');
    return front + std::to_string(onfloor % 10) + ".txt";
}

template <class kinds>
std::string designfile(const std::string& name, int n, kinds kindof) {
    if (fs::exists("designs/" + name)) return name;
    std::ofstream out("designs/" + name, std::ios::binary);
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i) out << recordof(kindof(i), i);
    return name;
}

std::unique_ptr<surface> surfaceof(way w) {
    switch (w) {
    case way::program:
    case way::plain: return std::make_unique<raster>(viewportwidth, viewportheight);
    case way::plainqpainter: return std::make_unique<painterimage>(false);
    case way::plainclippedqpainter: return std::make_unique<painterimage>(true);
    default: return std::make_unique<nosurface>();
    }
}

}  // namespace

std::string girdersfile(int n, int onfloor) {
    return designfile(designname("girds", 7, n, onfloor), n, [](std::size_t) { return "girder"; });
}

std::string panelsfile(int n, int onfloor) {
    return designfile(designname("pane", 6, n, onfloor), n, [](std::size_t) { return "panel"; });
}

std::string mixedfile(int n) { return designfile(designname("girdm", 7, n, 1), n, mixedkind); }

const char* nameof(way w) {
    switch (w) {
    case way::program: return "program";
    case way::nodrawing: return "program,nothing drawn";
    case way::plain: return "plain";
    case way::plainnodrawing: return "plain,nothing drawn";
    case way::plainqpainter: return "plain,QPainter";
    case way::plainclippedqpainter: return "plain,clipped QPainter";
    }
    return "";
}

building::building(way w) : viewport(surfaceof(w)) {
    noshortcuts = w != way::program && w != way::nodrawing;
    viewportsurface = viewport.get();
    progresssurface = &progress;
    resetchannels();
    startprogram();
    click("startprogrambtn");
    wiresolid.text = "solid";
}

building::~building() { noshortcuts = false; }

void click(const std::string& name) { clickcontrol(named(name)); }

void pick(const std::string& list, const std::string& item) {
    control& c = named(list);
    for (std::size_t i = 0; i < c.items.size(); ++i)
        if (c.items[i] == item) return pickitem(c, static_cast<int>(i));
    throw std::logic_error(list + " has no item " + item);
}

void replaywire(const std::string& file) {
    click("autowiresingle");
    pick("autofile", file);
}

void replaysolid(const std::string& file) {
    click("autosolidsingle");
    pick("autofile5", file);
}

void replaycombined(const std::string& first, const std::string& second) {
    click("autosolidbtn");
    pick("autofile3", first);
    pick("autofile4", second);
}

drawn drawnby(const std::function<void()>& action) {
    surface* const before = viewportsurface;
    pixelcounter counter;
    viewportsurface = &counter;
    action();
    viewportsurface = before;
    return {static_cast<double>(counter.lines), static_cast<double>(counter.pixels)};
}

}  // namespace tessaly

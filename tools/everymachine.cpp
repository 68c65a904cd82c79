// Plays buildings and views, and writes three checksums after each step, which must be equal on all machines: of the
// picture, of the lines drawn, and of the numbers from which the lines were computed. The numbers are included because
// rounding to pixels hides small differences.
//   everymachine ROOT         plays all steps with the data, scripts and samples of the repository ROOT; a row per step
//   everymachine ROOT STEP    writes every line and number in the checksums of this step

#include "building/layouts.h"
#include "core/controls.h"
#include "core/failure.h"
#include "core/viewvalues.h"
#include "core/world.h"
#include "player/checksum.h"
#include "player/commands.h"
#include "render/projector.h"
#include "tools/workingfolder.h"
#include "windows/handlers.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>

namespace {

using namespace tessaly;
namespace fs = std::filesystem;

// ---- checksums ---------------------------------------------------------------------------

int step = 1;             // the current step
checksum lines, numbers;  // of the current step
long linesdrawn = 0;      // in the current step
int listedstep = 0;       // the step to write in full; 0: none

// Adds numbers to a checksum; in the listed step, also writes them.
void add(checksum& sum, const char* what, std::initializer_list<double> added) {
    for (const double number : added) sum.add(number);
    if (step != listedstep) return;
    std::fputs(what, stdout);
    for (const double number : added) std::printf(" %s", shortesttext(number).c_str());
    std::putchar('\n');
}

struct linesum : surface {
    void line(float x1, float y1, float x2, float y2, colour c) override {
        ++linesdrawn;
        add(lines, "line",
            {double(x1), double(y1), double(x2), double(y2), c.red * 65536.0 + c.green * 256.0 + c.blue});
    }
    void save(const std::string&) override {}
    void setpicture(const std::string&) override {}
};

// Draws the picture as the program does, with its shortcuts, and adds each line to the checksum.
struct measuredsurface : surface {
    raster image{viewportwidth, viewportheight};
    linesum sum;

    void line(float x1, float y1, float x2, float y2, colour c) override {
        image.line(x1, y1, x2, y2, c);
        sum.line(x1, y1, x2, y2, c);
    }
    void drawbetween(const facecorners& f, int n, colour c) override {
        image.drawbetween(f, n, c);
        add(numbers, "face", {f.x1, f.y1, f.x2, f.y2, f.x3, f.y3, f.x4, f.y4});
        sum.drawbetween(f, n, c);
    }
    void save(const std::string& path) override { image.save(path); }
    void setpicture(const std::string& path) override { image.setpicture(path); }
};

void addpoint(int i) {
    add(numbers, "point", {basex[i], basey[i], basez[i], ptx[i], pty[i], ptz[i], savex[i], savey[i], savez[i]});
    add(numbers, "plane", {planex[i], planey[i], planez[i], planedist[i], planecos[i], planeup[i], planeside[i]});
    add(numbers, "screen", {screenx[i], screeny[i]});
}

// Adds the element in the tables: its points, the points of its last framing lines, and the distances of its faces.
void addelement() {
    constexpr int framingpoints = 60, faces = 100;
    foreachpointinuse(addpoint);
    for (int i = framingscratch; i < framingscratch + framingpoints; ++i) addpoint(i);
    addpoint(referencepoint);
    add(numbers, "plane centre", {planecentrex, planecentrey, planecentrez});
    for (int q = 1; q <= faces; ++q)
        add(numbers, "distances",
            {quadcornerdist1[q], quadcornerdist2[q], quadcornerdist3[q], quadcornerdist4[q], double(quadorder[q])});
}

// Adds each element of a replay. The replay flushes its progress strip before it reads an element, while the tables
// still hold the previous one.
struct measuredstrip : linesum {
    void line(float, float, float, float, colour) override {}
    void flush() override { addelement(); }
};

measuredsurface measured;
measuredstrip progress;

// ---- steps -------------------------------------------------------------------------------

fs::path root;
std::optional<workingfolder> folder;

void play(const std::string& script) {
    playline(script);
    addelement();
}

// Ends a step and writes its row. If nothing was drawn, the step continues.
void endstep(const std::string& name) {
    if (linesdrawn == 0) return;
    if (step == listedstep) std::exit(0);
    if (listedstep == 0) {
        checksum picture;
        for (const std::uint32_t pixel : measured.image.pixels) picture.add(std::uint64_t{pixel});
        std::printf("%s %s %s %7ld lines, step %d: %s\n", picture.text().c_str(), lines.text().c_str(),
                    numbers.text().c_str(), linesdrawn, step, name.c_str());
    }
    lines = numbers = {};
    linesdrawn = 0;
    ++step;
}

// Starts the program again in a new working folder.
void restart() {
    folder.emplace(root);
    measured.image.clear();
    startprogram();
    play("click startprogrambtn");
}

void playscript(const fs::path& path) {
    restart();
    std::ifstream script(path);
    for (std::string line; std::getline(script, line);) {
        if (!line.starts_with("click") && !line.starts_with("pick") && !line.starts_with("type")) continue;
        if (line == "click startprogrambtn" || line == "click exitbtn") continue;
        play(line);
        endstep(path.stem().string() + ", " + line);
    }
}

void setview(std::initializer_list<std::string> texts) {
    auto text = texts.begin();
    for (const viewvalue& v : viewvalues) play("type " + v.box.name + " \"" + *text++ + '"');
    play("click cventerbtn");
}

void replay(const std::string& design) {
    play("click autosolidsingle");
    play("pick autofile5 \"" + design + ".txt\"");
}

void restartwithsamples() {
    restart();
    for (const auto& sample : fs::directory_iterator(root / "samples"))
        if (sample.path().extension() == ".txt") fs::copy(sample.path(), "designs");
    play("click shopfm");
}

void playhouse() {
    constexpr const char* sides[][2] = {{"1850", "-1850"}, {"2600", "10"},  {"1850", "1850"},   {"20", "2600"},
                                        {"-1850", "1850"}, {"-2600", "30"}, {"-1850", "-1850"}, {"40", "-2600"}};
    restartwithsamples();
    for (const auto& [x, y] : sides) {
        setview({x, y, "830", "1", "2", "280", ".056", "170", "-270"});
        for (const char* design : {"girdhou1", "paneho1", "roofh1", "girdhou2", "paneho2", "roofh2"}) replay(design);
        endstep(std::string("the house from ") + x + ", " + y);
    }
}

void playtower() {
    restartwithsamples();
    setview({"1850", "-1850", "1230", "1", "1", "600", ".036", "200", "-270"});
    for (const char floordigit : std::string("1234567890")) {
        for (const char* design : {"girdtow", "paneto"}) replay(std::string(design) + floordigit);
        endstep(std::string("the tower, floor ") + floordigit);
    }
    replay("rooft0");
    endstep("the tower, roof");
}

// Places each element at one position of each of its button families, which differ in rotation; panels with each snip.
void playelements(const std::string& mode) {
    restart();
    play("type wiresolid \"" + mode + '"');
    for (const char* scene : {"groupbtn", "displaycubebtn"}) {
        play(std::string("click ") + scene);
        endstep(scene);
    }
    for (const char* element : {"postbeambtn", "roofbtn", "orange1btn", "orange2btn", "orange3btn", "yellow1btn",
                                "yellow2btn", "yellow3btn", "door2btn", "door4btn"})
        for (const buttonfamily& f : allbuttonfamilies()) {
            const std::string position = positionname({&f, 0, f.x0 + 2 * 192, f.y0 + 3 * 192, 0, 0});
            play(std::string("click ") + element);
            if (!f.layout->shown) continue;
            const bool snipped = f.layout == &layoutpanels;
            for (std::size_t snip = 0; snip < (snipped ? panelsnipper.items.size() : 1); ++snip) {
                if (snipped) play("type panelsnipper \"" + panelsnipper.items[snip] + '"');
                play("click " + position);
            }
            endstep(std::string(element) + ", " + position + ", " + mode);
        }
}

// Random numbers, computed from those of the generator directly, because distributions differ between libraries.
std::mt19937 generator;
int randomint(int min, int max) { return min + static_cast<int>(generator() % static_cast<unsigned>(max - min + 1)); }
std::string randomtenths(int min, int max) { return shortesttext(randomint(min, max) / 10.0); }

// Plays random views, some from inside the building, each with an element at a random position.
void playviews() {
    restart();
    for (const char* opened : {"shopfm", "postbeambtn", "orange2btn", "roofbtn"}) play(std::string("click ") + opened);
    for (int view = 1; view <= 300; ++view) {
        const int far = view % 3 == 0 ? 4000 : 30000;  // tenths of a model unit
        setview({randomtenths(-far, far), randomtenths(-far, far), randomtenths(-far / 2, far),
                 randomtenths(-3000, 3000), randomtenths(-3000, 3000), randomtenths(0, 6000),
                 shortesttext(randomint(5, 105) / 1000.0), randomtenths(-3000, 3000), randomtenths(-6000, 3000)});
        const buttonposition& p = allbuttonpositions()[static_cast<std::size_t>(randomint(0, 328))];
        play(std::string("type wiresolid \"") + (view % 4 == 0 ? "wireframe" : "solid") + '"');
        play(p.family->layout == &layoutpanels ? "click orange2btn"
             : p.family->layout == &layoutroof ? "click roofbtn"
                                               : "click postbeambtn");
        play("click " + positionname(p));
        endstep("view " + std::to_string(view) + ", " + positionname(p));
    }
}

// Replays a hand-written design file whose panels are rotated by arbitrary angles.
void playrotated() {
    restart();
    std::ofstream design("designs/panels1.txt", std::ios::binary);
    for (int i = 1; i <= 150; ++i)
        design << "\"panel\"," << i << ",100,100," << randomint(1, 15) << ",0," << randomtenths(-7200, 7200) << ','
               << randomtenths(0, 9600) << ',' << randomtenths(0, 13000) << ",4,64\r\n";
    design.close();
    replay("panels1");
    endstep("panels at odd angles");
}

}  // namespace

int main(int count, char** words) {
    if (count < 2 || count > 3) {
        std::fputs("usage: everymachine ROOT [STEP]\n", stderr);
        return 2;
    }
    root = fs::absolute(words[1]);
    if (count == 3) listedstep = std::atoi(words[2]);
    viewportsurface = &measured;
    progresssurface = &progress;
    try {
        playscript(root / "tools/demo.play");
        playscript(root / "docs/guide.play");
        playhouse();
        playtower();
        for (const char* mode : {"wireframe", "solid"}) playelements(mode);
        playviews();
        playrotated();
    } catch (const std::exception& failed) {
        std::fprintf(stderr, "everymachine, step %d: %s\n", step, failed.what());
        return 1;
    }
    return 0;
}

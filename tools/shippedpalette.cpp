// The palette: 236 colours of eight bytes each, and the same as a list that can be read. The first entries are the
// building's own, three to a colour (face, shade, line); behind them stands a colour wheel, also in threes.
#include "tools/shipped.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace tessaly {

namespace {

struct rgb {
    int red, green, blue;
};

// entry is the first of three; a face turned by a quarter takes the second and draws its lines in the third.
struct triple {
    int entry;
    const char* name;
    rgb face, shade, line;
};

constexpr triple triples[] = {
    // clang-format off
//    entry                  name                          face              shade             line
    { paint::steelside,    "steel side",               {  88, 108, 132 }, { 116, 138, 162 }, { 164, 182, 200 } },
    { paint::steelend,     "steel end",                { 116, 138, 162 }, {  88, 108, 132 }, {  56,  72,  92 } },
    { paint::steeltop,     "steel top",                { 158, 176, 194 }, { 150, 168, 186 }, { 110, 128, 148 } },
    { paint::steelbottom,  "steel from below",         {  70,  86, 106 }, {  66,  82, 102 }, {  46,  58,  74 } },
    { paint::orange,       "orange wall",              { 244, 148,  64 }, { 222, 120,  42 }, { 164,  80,  22 } },
    { paint::orangerib,    "orange rib",               { 228, 124,  44 }, { 198,  98,  28 }, { 140,  64,  14 } },
    { paint::orangetrim,   "orange trim",              { 204,  98,  32 }, { 172,  78,  22 }, { 116,  48,  10 } },
    { paint::yellow,       "yellow wall",              { 252, 216,  92 }, { 234, 190,  62 }, { 170, 130,  24 } },
    { paint::yellowboard,  "yellow board",             { 242, 198,  66 }, { 216, 168,  44 }, { 150, 110,  14 } },
    { paint::yellowtrim,   "yellow trim",              { 214, 160,  40 }, { 184, 134,  26 }, { 122,  84,   8 } },
    { paint::cream,        "cream wall",               { 244, 236, 216 }, { 220, 208, 184 }, { 160, 146, 118 } },
    { paint::creamtrim,    "cream trim",               { 186, 170, 142 }, { 158, 142, 114 }, { 106,  92,  68 } },
    { paint::sash,         "window frame",             { 252, 250, 244 }, { 226, 226, 222 }, { 168, 170, 170 } },
    { paint::glass,        "glass",                    { 160, 212, 236 }, { 112, 168, 200 }, {  50,  92, 124 } },
    { paint::doorred,      "red door",                 { 196,  60,  56 }, { 164,  42,  42 }, { 104,  22,  26 } },
    { paint::doorredin,    "red door, panel",          { 168,  44,  44 }, { 136,  32,  34 }, {  84,  16,  20 } },
    { paint::doorgreen,    "green door",               {  46, 136, 110 }, {  30, 108,  88 }, {  14,  66,  54 } },
    { paint::doorgreenin,  "green door, panel",        {  34, 112,  90 }, {  22,  86,  70 }, {  10,  52,  42 } },
    { paint::brass,        "brass",                    { 240, 204, 110 }, { 206, 168,  76 }, { 140, 106,  36 } },
    { paint::rooftop,      "roof",                     { 142, 106, 100 }, { 120,  86,  82 }, {  86,  58,  56 } },
    { paint::roofedge,     "roof edge",                { 104,  72,  70 }, {  84,  56,  56 }, {  58,  36,  38 } },
    { paint::roofbelow,    "roof from below",          { 120, 104, 100 }, { 104,  90,  86 }, {  80,  68,  66 } },
    { paint::steelwire,    "steel wires",              {  64,  84, 112 }, {  90, 112, 140 }, {  46,  60,  82 } },
    { paint::orangewire,   "orange wires",             { 196,  88,  16 }, { 226, 140,  72 }, { 140,  60,  10 } },
    { paint::yellowwire,   "yellow wires",             { 168, 124,   8 }, { 206, 168,  60 }, { 120,  86,   4 } },
    { paint::doorwire,     "door wires",               { 120, 106,  80 }, { 170,  40,  44 }, {  16,  96,  76 } },
    { paint::glasswire,    "glass wires",              {  36, 120, 168 }, {  90, 160, 200 }, {  24,  84, 120 } },
    { paint::roofwire,     "roof wires",               { 122,  70,  66 }, { 160, 112, 106 }, {  90,  48,  46 } },
    { paint::gridwire,     "layout grid and posts",    { 158, 172, 188 }, { 112, 130, 150 }, {  90, 106, 124 } },
    { paint::landwire,     "plot and hills",           { 168, 188, 150 }, { 150, 176, 182 }, { 120, 146, 110 } },
    { paint::treewire,     "firs",                     {  96, 152, 104 }, { 140, 110,  80 }, {  60, 110,  70 } },
    { paint::axisx,        "X",                        { 204,  48,  48 }, { 224, 120, 110 }, { 150,  30,  30 } },
    { paint::axisy,        "Y",                        {  28, 136,  60 }, { 110, 180, 120 }, {  20,  96,  44 } },
    { paint::axisz,        "Z and floors",             {  44,  80, 196 }, { 110, 134, 210 }, {  30,  54, 140 } },
    { paint::cubewire,     "cube",                     { 150, 110, 170 }, { 170, 136, 188 }, { 120,  80, 140 } },
};  // clang-format on

constexpr int entries = 236;
static_assert(std::size(triples) * 3 == paint::named, "each name's three entries, without a gap");

// A colour of the wheel: hue in degrees, the others 0..1.
rgb wheel(double hue, double saturation, double value) {
    const auto component = [&](double n) {
        const double k = std::fmod(n + hue / 60, 6);
        return static_cast<int>(std::lround(255 * value * (1 - saturation * std::clamp(std::min(k, 4 - k), 0.0, 1.0))));
    };
    return {component(5), component(3), component(1)};
}

struct entry {
    std::string name;
    rgb shown;
};

// Twelve greys, then hues in steps of 15 degrees, as far as the entries reach. Index 0 is unused.
std::array<entry, entries + 1> palette() {
    std::array<entry, entries + 1> all{};
    const auto put = [&](int first, const std::string& name, rgb face, rgb shade, rgb line) {
        const rgb three[] = {face, shade, line};
        const char* const role[] = {"", ", shade", ", line"};
        for (int i = 0; i < 3 && first + i <= entries; i++)
            all[static_cast<std::size_t>(first + i)] = {name + role[i], three[i]};
    };
    for (const triple& t : triples) put(t.entry, t.name, t.face, t.shade, t.line);
    int next = paint::named + 1;
    for (int level = 255; level >= 35; level -= 44, next += 3) {
        const auto grey = [&](double f) {
            const int g = static_cast<int>(level * f);
            return rgb{g, g, g};
        };
        put(next, "grey " + std::to_string(level), grey(1), grey(0.85), grey(0.55));
    }
    for (double value = 0.95; next <= entries; value -= 0.25)
        for (int hue = 0; hue < 360 && next <= entries; hue += 15, next += 3)
            put(next, "hue " + std::to_string(hue) + (value > 0.9 ? "" : " dark"), wheel(hue, 0.7, value),
                wheel(hue, 0.75, value * 0.82), wheel(hue, 0.8, value * 0.5));
    return all;
}

}  // namespace

std::vector<shippedfile> palettefiles() {
    const auto all = palette();
    std::string records;
    std::string list =
        "The palette's colours: entry, red, green, blue. A face takes the entry that its file names;\n"
        "turned by 90 or 270 degrees it takes the next one. Framing lines take one more than the face.\n\n";
    for (int n = 1; n <= entries; n++) {
        const entry& e = all[static_cast<std::size_t>(n)];
        for (const int component : {0, e.shown.blue, e.shown.green, e.shown.red}) {
            records += static_cast<char>(component & 255);
            records += static_cast<char>(component >> 8 & 255);
        }
        char row[100];
        std::snprintf(row, sizeof row, "%3d  %3d %3d %3d  %s\n", n, e.shown.red, e.shown.green, e.shown.blue,
                      e.name.c_str());
        list += row;
    }
    return {{"pals/tessaly.pal", records}, {"pals/tessaly.txt", list}};
}

}  // namespace tessaly

// Measures parts of an action, with the shortcuts and with the plain method.

#include "bench/measure.h"
#include "core/world.h"
#include "data/elements.h"

namespace tessaly {

namespace {

// Clears the tables, reads a panel into them and draws its wires.
void readpanel() {
    datafile = "st-panels-1or-full.txt";
    placemode = 3;
    placex = placey = 488;
    placez = 0;
    readelements();
}

// Faces as they appear on the screen, in viewport pixels.
struct screenface {
    const char* name;
    facecorners corners;
    int n;
};
constexpr screenface faces[] = {
    // clang-format off
    {"a post's side",   {400.2, 300.7, 408.9, 302.1, 401.0, 236.3, 409.8, 237.0}, 200},
    {"a panel's front", {300.4, 310.2, 372.6, 330.9, 299.8, 250.1, 373.3, 266.0}, 200},
    {"a roof's top",    {300.4, 310.2, 402.6, 340.9, 398.8, 260.1, 501.3, 286.0}, 1500},
    {"a near wall",     {-90.5, 560.1, 930.7, 420.9, -95.0, -60.4, 935.2, 101.0}, 200},
    // clang-format on
};

}  // namespace

void addshortcuts() {
    for (const method m : {method::program, method::plain, method::qpainter}) {
        addbenchmark("shortcut/read an element", m, 1, readpanel);
        for (const screenface& f : faces)
            addbenchmark(std::string("face/") + f.name, m, 0, [&f] {
                viewportsurface->fillface(f.corners, f.n, {180, 90, 20});
            });
    }
}

}  // namespace tessaly

// Measures replays of one and two design files, wire and solid, up to a tower of ten floors.

#include "bench/measure.h"

namespace tessaly {

namespace {

constexpr int floors = 10;
constexpr int storeygirders = 130, storeypanels = 100;  // one girder at each of the 130 positions

void replaystorey(int onfloor) {
    replaycombined(girdersfile(storeygirders, onfloor), panelsfile(storeypanels, onfloor));
}

void replaymixed(int n) { replaycombined(mixedfile(n / 2), mixedfile(n - n / 2)); }

}  // namespace

void addreplays() {
    for (const method m : {method::program, method::plain}) {
        for (const int n : {10, 100, 1000}) {
            addbenchmark("replay/wire " + std::to_string(n), m, n, [n] { replaywire(girdersfile(n)); });
            addbenchmark("replay/solid " + std::to_string(n), m, n, [n] { replaysolid(girdersfile(n)); });
        }
        addbenchmark("replay/storey", m, storeygirders + storeypanels, [] { replaystorey(1); });
        addbenchmark("replay/tower", m, floors * (storeygirders + storeypanels), [] {
            for (int onfloor = 1; onfloor <= floors; ++onfloor) replaystorey(onfloor);
        });
    }
    addbenchmark(tenthofreplay, method::program, 100, [] { replaymixed(100); });
    for (const method m : allmethods) addbenchmark(measuredreplay, m, 1000, [] { replaymixed(1000); });
}

}  // namespace tessaly

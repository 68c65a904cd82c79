// Measures single actions: a click on a button of each button family, a view step, clearing, the start-up display.

#include "bench/measure.h"
#include "building/layouts.h"
#include "player/commands.h"

#include <algorithm>

namespace tessaly {

void addclicks() {
    for (const buttonfamily& f : allbuttonfamilies()) {
        const auto middle = [&f](const buttonposition& p) {
            return p.family == &f && p.number == f.firstnumber + f.countx * f.county / 2;
        };
        const auto& positions = allbuttonpositions();
        const std::string name = positionname(*std::find_if(positions.begin(), positions.end(), middle));
        for (const method m : {method::program, method::plain})
            addbenchmark(std::string("click/") + f.nameprefix, m, 1, [name] { playline("click " + name); });
    }
    for (const method m : {method::program, method::plain, method::qpainter}) {
        addbenchmark("view/step", m, 0, [] { playline("click horizinc"); });
        addbenchmark("view/full clear", m, 0, [] { playline("click fillscreen"); });
        addbenchmark("start/start-up display", m, 0, [] { playline("click groupbtn"); });
    }
}

}  // namespace tessaly

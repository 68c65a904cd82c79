// Single actions: a click on a position of each family, a view step, the full clear, the start.

#include "bench/measure.h"
#include "building/layouts.h"
#include "core/controls.h"
#include "core/world.h"

namespace tessaly {

namespace {

// The middle one of a family's positions.
const buttonposition& middleof(const buttonfamily& f) {
    const buttonposition* found = nullptr;
    const int middle = f.first + f.cols * f.rows / 2;
    for (const buttonposition& p : allbuttonpositions())
        if (p.of == &f && p.number == middle) found = &p;
    return *found;
}

}  // namespace

void addclicks() {
    for (const buttonfamily& f : allbuttonfamilies())
        for (const way w : {way::program, way::plain})
            addmeasure(std::string("click/") + f.word, w, 1, [&f] {
                panelprefix = "st-panels-1or-";
                clickposition(middleof(f));
            });
    for (const way w : {way::program, way::plain, way::plainqpainter}) {
        addmeasure("view/step", w, 0, [] { click("horizinc"); });
        addmeasure("view/full clear", w, 0, [] { click("fillscreen"); });
        addmeasure("start/start-up display", w, 0, [] { click("groupbtn"); });
    }
}

}  // namespace tessaly

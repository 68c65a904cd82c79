// Compares every shortcut with the plain method that it replaces: the same random elements are read and painted with
// both, and after each the tables, scalars, pixels and the report of a failure are the same.
#include "data/elements.h"
#include "render/painter.h"
#include "tests/random.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

std::string row(std::initializer_list<std::string> fields) {
    std::string text;
    for (const std::string& field : fields) text += field + ",";
    text.back() = '\n';
    return text;
}

std::string whole(randomnumbers& d, int from, int to) { return std::to_string(d.whole(from, to)); }

std::string coordinate(randomnumbers& d) {
    if (d.once(200)) return "1.5e6";  // too far away for the painter's sort
    if (d.once(400)) return "lost";
    return whole(d, -40, 90) + (d.once(4) ? ".375" : "0");
}

std::string element(randomnumbers& d) {
    elementtext e;
    const int points = d.whole(4, 110), quads = d.once(5) ? d.whole(90, 140) : d.whole(0, 12);
    const auto at = [&] { return coordinate(d); };
    const auto point = [&] { return d.once(60) ? whole(d, 0, 130) : whole(d, 1, points); };
    for (int i = 0; i < points; ++i) e.points += row({"1", at(), at(), at()});
    for (std::string& group : e.lines)
        for (int i = d.whole(0, 20); i > 0; --i) group += row({point(), point()});
    for (std::string* cubes : {&e.cubes400, &e.cubes600})
        for (int i = d.once(3) ? d.whole(1, d.once(5) ? 110 : 4) : 0; i > 0; --i)
            *cubes += row({"1", at(), at(), at(), at(), at(), at(), "1", whole(d, 1, 60)});
    std::string before;
    for (int i = 0; i < quads; ++i) {
        if (before.empty() || !d.once(4))  // the same quad again: equal keys
            before = d.once(20) ? row({"1", "0", "0", "0", point(), "1", "9"})
                                : row({"1", point(), point(), point(), point(), "1", whole(d, 1, 60)});
        e.planes += before;
    }
    for (std::string* framing : {&e.framing1, &e.framing2})
        for (int i = d.whole(0, 4); i > 0; --i) *framing += row({whole(d, 1, quads + 1), whole(d, 0, 5)});
    return e;
}

// Reads and paints one of a few elements, some of them rewritten first. Rotated faces change their colour each time
// they are painted.
void drawsome(randomnumbers& d) {
    setview(d.whole(-90, 90) * 10, d.whole(-90, 90) * 10, d.whole(-9, 90) * 10, d.whole(1, 6) / 20.0);
    horizshift = -600;
    vertshift = 400;  // the middle of the picture
    const std::string name = "st-" + whole(d, 0, 5) + ".txt";
    if (d.once(5) || !std::filesystem::exists("datah/" + name)) session::write("datah/" + name, element(d));
    datafile = name;
    placemode = d.whole(1, 5);
    placex = d.whole(0, 5) * 192;
    placey = d.whole(0, 5) * 192;
    placez = d.whole(0, 2) * 128;
    rotx = 90 * d.whole(0, 1);
    rotz = 90 * d.whole(0, 3);
    panelcode = d.whole(18, 22);
    readelements();
    for (int wild = d.whole(0, 5); wild > 0; --wild) {  // corners near, far, equal, not a number
        const double coordinates[] = {0, 0.5, 100, 9999, std::ldexp(1, d.whole(10, 130)), std::nan("")};
        screenx.set(d.whole(1, 20), d.of(coordinates));
        screeny.set(d.whole(1, 20), d.of(coordinates));
    }
    if (d.once(5)) quad4.set(0, d.whole(0, 1));  // if 1, the painter measures all slots
    for (int times = d.whole(1, 2); times > 0; --times) paintsolids();
}

}  // namespace

// Finds a slot that was not cleared, a quad at another position of the order, a number read wrongly.
TEST(shortcuts, elementsLeaveTheSameTablesAndPixels) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        std::vector<std::string> seen[2];
        for (const bool plain : {true, false}) {
            session s(ownfolder);
            raster image(300, 200);
            viewportsurface = &image;
            noshortcuts = plain;
            randomnumbers d(seed);
            for (int step = 0; step < 24; ++step) {
                const auto f = failureof([&] { drawsome(d); });
                if (f) resetchannels();
                seen[plain].push_back(worldtext(image) + (f ? f->what() : ""));
            }
        }
        for (std::size_t step = 0; step < seen[0].size(); ++step)
            ASSERT_EQ(seen[0][step], seen[1][step]) << "after step " << step;
    }
}

// Compares every shortcut with the plain method that it replaces. The same random elements are read and painted with
// both. After each element the tables, scalars, pixels and the report of a failure must be equal.
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

std::string whole(randomnumbers& random, int from, int to) { return std::to_string(random.whole(from, to)); }

std::string coordinate(randomnumbers& random) {
    if (random.oncein(200)) return "1.5e6";  // too far away for the painter's sort
    if (random.oncein(400)) return "lost";
    return whole(random, -40, 90) + (random.oncein(4) ? ".375" : "0");
}

std::string element(randomnumbers& random) {
    elementtext e;
    const int points = random.whole(4, 110), quads = random.oncein(5) ? random.whole(90, 140) : random.whole(0, 12);
    const auto at = [&] { return coordinate(random); };
    const auto point = [&] { return random.oncein(60) ? whole(random, 0, 130) : whole(random, 1, points); };
    for (int i = 0; i < points; ++i) e.points += row({"1", at(), at(), at()});
    for (std::string& group : e.lines)
        for (int i = random.whole(0, 20); i > 0; --i) group += row({point(), point()});
    for (std::string* cubes : {&e.cubes400, &e.cubes600})
        for (int i = random.oncein(3) ? random.whole(1, random.oncein(5) ? 110 : 4) : 0; i > 0; --i)
            *cubes += row({"1", at(), at(), at(), at(), at(), at(), "1", whole(random, 1, 60)});
    std::string before;
    for (int i = 0; i < quads; ++i) {
        if (before.empty() || !random.oncein(4))  // otherwise the same quad again, at the same distance
            before = random.oncein(20) ? row({"1", "0", "0", "0", point(), "1", "9"})
                                       : row({"1", point(), point(), point(), point(), "1", whole(random, 1, 60)});
        e.planes += before;
    }
    for (std::string* framing : {&e.framing1, &e.framing2})
        for (int i = random.whole(0, 4); i > 0; --i)
            *framing += row({whole(random, 1, quads + 1), whole(random, 0, 5)});
    return e;
}

// Reads one of six elements, after writing its file in one of five cases, and paints it once or twice.
void drawsome(randomnumbers& random) {
    setview(random.whole(-90, 90) * 10, random.whole(-90, 90) * 10, random.whole(-9, 90) * 10,
            random.whole(1, 6) / 20.0);
    horizshift = -600;
    vertshift = 400;  // the middle of the picture
    const std::string name = "st-" + whole(random, 0, 5) + ".txt";
    if (random.oncein(5) || !std::filesystem::exists("datah/" + name)) session::write("datah/" + name, element(random));
    datafile = name;
    placemode = random.whole(1, 5);
    placex = random.whole(0, 5) * 192;
    placey = random.whole(0, 5) * 192;
    placez = random.whole(0, 2) * 128;
    rotx = 90 * random.whole(0, 1);
    rotz = 90 * random.whole(0, 3);
    panelcode = random.whole(18, 22);
    readelements();
    for (int corners = random.whole(0, 5); corners > 0; --corners) {  // moved anywhere on the screen, or off it
        const double coordinates[] = {0, 0.5, 100, 9999, std::ldexp(1, random.whole(10, 130)), std::nan("")};
        screenx.set(random.whole(1, 20), coordinates[random.whole(0, 5)]);
        screeny.set(random.whole(1, 20), coordinates[random.whole(0, 5)]);
    }
    if (random.oncein(5)) quad4.set(0, random.whole(0, 1));  // if 1, the painter measures all slots
    for (int times = random.whole(1, 2); times > 0; --times) paintsolids();
}

}  // namespace

// Catches a slot that is not cleared, a quad at the wrong position of the order, and a number that is read wrongly.
TEST(shortcuts, elementsLeaveTheSameTablesAndPixels) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        std::vector<std::string> seen[2];
        for (const bool plain : {true, false}) {
            session s(inownfolder);
            raster image(300, 200);
            viewportsurface = &image;
            noshortcuts = plain;
            randomnumbers random(seed);
            for (int step = 0; step < 24; ++step) {
                const auto f = failureof([&] { drawsome(random); });
                if (f) resetchannels();
                seen[plain].push_back(worldtext(image) + (f ? f->what() : ""));
            }
        }
        for (std::size_t step = 0; step < seen[0].size(); ++step)
            ASSERT_EQ(seen[0][step], seen[1][step]) << "after step " << step;
    }
}

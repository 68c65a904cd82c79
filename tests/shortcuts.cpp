// Every shortcut against the plain way that it stands for: the same sessions are played both ways, and after each step
// all tables, all scalars, all pixels and the report of a failure are the same.
#include "building/layouts.h"
#include "data/elements.h"
#include "render/painter.h"
#include "render/raster.h"
#include "tests/session.h"

#include <bit>
#include <random>

using namespace tessaly;

namespace {

class digest {
  public:
    void add(std::uint64_t bits) { sum = (sum ^ bits) * 1099511628211U; }
    void add(const value& v) {
        if (v.isnumber()) return add(std::bit_cast<std::uint64_t>(double(v)));
        add(v.empty() ? 1 : 2);
        for (const char c : v.text()) add(static_cast<std::uint64_t>(c));
    }
    std::uint64_t sum = 14695981039346656037U;
};

// What can be seen of the program at one moment: a figure for each table, each scalar and the picture.
using moment = std::vector<std::pair<std::string, std::uint64_t>>;

moment thismoment(const raster& image, const std::string& report) {
    moment seen;
    for (const tablebase* t = tablebase::first; t != nullptr; t = t->next) {
        digest d;
        for (const value& v : t->elements()) d.add(v);
        seen.emplace_back(t->name, d.sum);
    }
    for (const scalar& s : scalars()) {
        digest d;
        d.add(*s.held);
        seen.emplace_back(s.name, d.sum);
    }
    digest picture, failed;
    for (int i = 0; i < image.width() * image.height(); ++i) picture.add(image.pixels()[i]);
    failed.add(value(report));
    seen.emplace_back("picture", picture.sum);
    seen.emplace_back("report " + report, failed.sum);
    return seen;
}

// Plays steps one way, from the same beginning.
template <class procedure>
std::vector<moment> play(bool plainly, const filesbypath& files, int steps, procedure step) {
    session s(files);
    raster image(300, 200);
    viewportsurface = &image;
    plainway = plainly;
    std::vector<moment> seen;
    for (int i = 0; i < steps; ++i) {
        std::string report;
        try {
            step(s, i);
        } catch (const failure& f) {
            report = f.report();
            forgetchannels();
        }
        seen.push_back(thismoment(image, report));
    }
    plainway = false;
    return seen;
}

template <class procedure>
void expectsame(const filesbypath& files, int steps, procedure step) {
    const auto quick = play(false, files, steps, step), plain = play(true, files, steps, step);
    for (std::size_t i = 0; i < quick.size(); ++i)
        for (std::size_t k = 0; k < quick[i].size(); ++k)
            ASSERT_EQ(quick[i][k], plain[i][k]) << "after step " << i << ", of " << plain[i][k].first;
}

class dice {
  public:
    explicit dice(unsigned seed) : engine(seed) {}
    int whole(int from, int to) { return std::uniform_int_distribution(from, to)(engine); }
    bool once(int in) { return whole(1, in) == 1; }
    template <class... all>
    std::string row(all... fields) {
        std::string text;
        for (const std::string& field : {std::string(fields)...}) text += field + ",";
        text.back() = '\n';
        return text;
    }
    std::string coordinate() {
        if (once(200)) return "1.5e6";  // beyond what the painter can choose
        if (once(400)) return "lost";
        return std::to_string(whole(-40, 90) * 4) + (once(4) ? ".375" : "");
    }
    std::string point(int points) { return std::to_string(once(60) ? whole(0, 130) : whole(1, points)); }

    std::string element() {
        elementtext e;
        const int points = whole(4, 110);
        for (int i = 0; i < points; ++i) e.points += row("1", coordinate(), coordinate(), coordinate());
        for (int g = 0; g < 3; ++g)
            for (int i = whole(0, 20); i > 0; --i) e.lines[g] += row(point(points), point(points));
        for (std::string* cubes : {&e.cubes400, &e.cubes600})
            for (int i = once(3) ? whole(1, once(5) ? 110 : 4) : 0; i > 0; --i)
                *cubes += row("1", coordinate(), coordinate(), coordinate(), coordinate(), coordinate(), coordinate(),
                              "1", std::to_string(whole(1, 60)));
        const int quads = once(5) ? whole(90, 140) : whole(0, 12);
        std::string before;
        for (int i = 0; i < quads; ++i) {
            if (before.empty() || !once(4))  // the same quad again: equal keys
                before = once(20) ? row("1", "0", "0", "0", point(points), "1", "9")
                                  : row("1", point(points), point(points), point(points), point(points), "1",
                                        std::to_string(whole(1, 60)));
            e.planes += before;
        }
        for (std::string* framing : {&e.framing1, &e.framing2})
            for (int i = whole(0, 4); i > 0; --i)
                *framing += row(std::to_string(whole(1, quads + 1)), std::to_string(whole(0, 5)));
        return e;
    }

  private:
    std::mt19937 engine;
};

}  // namespace

// A slot that was not cleared, a quad in another place of the order, a figure that is read as another.
TEST(shortcuts, elementsLeaveTheSameTablesAndPixels) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        dice files(seed);
        filesbypath written;
        for (int i = 0; i < 6; ++i) written["datah/st-" + std::to_string(i) + ".txt"] = files.element();
        expectsame(written, 16, [&](session&, int step) {
            dice d(seed * 100 + static_cast<unsigned>(step));
            setview(d.whole(-90, 90) * 10, d.whole(-90, 90) * 10, d.whole(-9, 90) * 10, d.whole(1, 6) / 10.0);
            const int file = d.whole(0, 5);
            if (d.once(5)) session::write("datah/st-" + std::to_string(file) + ".txt", d.element());
            datafile = "st-" + std::to_string(file) + ".txt";
            placemode = d.whole(1, 5);
            placex = d.whole(0, 5) * 192;
            placey = d.whole(0, 5) * 192;
            placez = d.whole(0, 2) * 128;
            rotx = 90 * d.whole(0, 1);
            rotz = 90 * d.whole(0, 3);
            panelcode = d.whole(18, 22);
            elementkind = d.once(4) ? "roof" : "girder";
            readelements();
            paintsolids();
            if (d.once(4)) paintsolids();  // turned faces change their colour again
        });
    }
}

// Clicks and replays of the shipped elements, from several sides and near by, solid.
TEST(shortcuts, buildingsComeOutTheSame) {
    const auto& positions = allpositions();
    expectsame({}, 8, [&](session& s, int step) {
        dice d(static_cast<unsigned>(step));
        if (step == 0) {
            s.start();
            s.click("wiresolidbtn");
            wiresolid.text = "solid";
            writefilebox.text = "on";
        }
        setview(d.whole(-20, 20) * 100, -1850, d.whole(1, 20) * 100, d.once(2) ? 0.56 : 3);
        panelprefix = d.once(2) ? "st-panels-2door-" : "st-panels-3yel-";
        for (int i = 0; i < 15; ++i) clickposition(positions[static_cast<std::size_t>(d.whole(0, 328))]);
        if (step % 3 == 2) s.click(step == 2 ? "magplusbtn" : "vertfocusplusbtn");
        if (step == 3) {
            s.click("autosolidsingle");
            s.pick("autofile5", "panels1.txt");
        }
        if (step == 5) {
            s.click("autosolidbtn");
            s.pick("autofile3", "girders1.txt");
            s.pick("autofile4", "roofs1.txt");
        }
    });
}

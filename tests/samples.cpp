// The sample buildings: the committed design files are what the clicks record, and their replay is the building that
// the clicks drew.
#include "tests/session.h"

#include <cstdio>

using namespace tessaly;

namespace {

// Plays the clicks of a sample building, as its script writes them.
void build(session& s, const std::string& building) {
    std::FILE* clicks = ::popen((TESSALY_SOURCE_DIR "/tools/make-samples.sh clicks " + building).c_str(), "r");
    char word[20], name[40], text[40];
    for (char line[100]; std::fgets(line, sizeof line, clicks) != nullptr;) {
        const int fields = std::sscanf(line, "%19s %39s \"%39[^\"]\"", word, name, text);
        if (fields == 3) s.type(name, text);
        if (fields == 2 && std::string(name) != "exitbtn" && std::string(name) != "startprogrambtn") s.click(name);
    }
    EXPECT_EQ(::pclose(clicks), 0);
}

std::string sample(const std::string& name) { return session::file(TESSALY_SOURCE_DIR "/samples/" + name); }

}  // namespace

// A sample left behind by a change of the layouts, of a record or of the script; a replay that loses, moves or adds an
// element.
TEST(samples, theHouseComesBackAsItWasClicked) {
    session s;
    s.start();
    s.click("wiresolidbtn");
    s.takelines();
    build(s, "house");
    const std::vector<drawnline> clicked = s.takelines();
    const std::pair<const char*, const char*> files[] = {{"girders1", "girdhou1"}, {"panels1", "paneho1"},
                                                         {"roofs1", "roofh1"},     {"girders2", "girdhou2"},
                                                         {"panels2", "paneho2"},   {"roofs2", "roofh2"}};
    for (const auto& [recorded, kept] : files) {
        const std::string name = std::string(kept) + ".txt";
        EXPECT_EQ(session::file("designs/" + std::string(recorded) + ".txt"), sample(name)) << name;
        session::write("designs/" + name, sample(name));
        s.click("autowiresingle");
        s.pick("autofile", name);
    }
    EXPECT_GT(clicked.size(), 1000u);
    EXPECT_TRUE(s.lines() == clicked);
}

// The tenth floor's files are named with a 0, the one figure that the readers take for it.
TEST(samples, theTowerHasTenFloors) {
    session s;
    s.start();
    s.click("wiresolidbtn");
    build(s, "tower");
    for (int level = 1; level <= 10; ++level) {
        const std::string n = std::to_string(level), kept = std::to_string(level % 10);
        EXPECT_EQ(session::file("designs/girders" + n + ".txt"), sample("girdtow" + kept + ".txt")) << n;
        EXPECT_EQ(session::file("designs/panels" + n + ".txt"), sample("paneto" + kept + ".txt")) << n;
    }
    session::write("designs/rooft0.txt", sample("rooft0.txt"));
    s.click("autosolidsingle");
    s.pick("autofile5", "rooft0.txt");
    EXPECT_EQ(placez, 1152);
}

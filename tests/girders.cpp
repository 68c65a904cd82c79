// Clicks on the girder layout: records to the byte, floors, draw and record mode, failures after the record.
#include "building/layouts.h"
#include "tests/session.h"

#include <set>

using namespace tessaly;

namespace {

constexpr const char* girders1 = "designs/girders1.txt";

long recordcount() {
    const std::string bytes = session::file(girders1);
    return std::count(bytes.begin(), bytes.end(), '\n');
}

}  // namespace

TEST(girders, recordsOfTheThreeFamilies) {
    session s;
    s.start();
    for (const char* name : {"postx0y16", "beamx0y16", "vbeamx16y16", "postx960y1360", "vbeamx784y1360"}) s.click(name);
    EXPECT_EQ(session::file(girders1), "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n"
                                       "\"girder\",49,8,104,42,0,0,0,16,4,64\r\n"
                                       "\"girder\",91,104,8,43,0,270,16,16,1,64\r\n"
                                       "\"girder\",48,968,1352,41,90,0,960,1360,4,64\r\n"
                                       "\"girder\",130,872,1352,43,0,270,784,1360,1,64\r\n");
    EXPECT_TRUE(rotx == 0 && rotz == 270 && placex == 784 - 488 && placey == 1360 - 680);
}

// A second click adds to the picture and replaces the tables.
TEST(girders, pixelsStayAndPointsGo) {
    session s;
    s.start();
    s.click("postx0y16");
    const auto first = s.lines();
    const double x = basex[1];
    s.click("postx192y16");
    ASSERT_GT(s.lines().size(), first.size());
    EXPECT_TRUE(std::equal(first.begin(), first.end(), s.lines().begin()));
    EXPECT_TRUE(basex[1] == x + 192 && rotx == 0);
    EXPECT_EQ(session::file(girders1),
              "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n\"girder\",9,200,8,41,90,0,192,16,4,64\r\n");
}

TEST(girders, drawModeAddsFacesAndRecordModeOnlyRecords) {
    session s;
    s.start();
    s.takelines();
    s.click("beamx0y16");
    const auto solid = s.takelines();
    s.click("wiresolidbtn");
    s.click("writefilebtn");
    EXPECT_TRUE(wiresolid.text == "wireframe" && writefilebox.text == "off");
    s.click("beamx0y16");
    const auto wires = s.takelines();
    ASSERT_LT(wires.size(), solid.size());
    EXPECT_TRUE(std::equal(wires.begin(), wires.end(), solid.begin()));
    EXPECT_EQ((solid.size() - wires.size()) / 402, 6U);  // the beam's six faces, and a few framing lines
    s.click("wiresolidbtn");
    s.click("beamx0y16");
    EXPECT_EQ(s.lines(), solid);
    EXPECT_EQ(session::file(girders1), "\"girder\",49,8,104,42,0,0,0,16,4,64\r\n");
    s.click("writefilebtn");
    s.click("beamx0y16");
    s.click("beamx0y16");
    EXPECT_EQ(recordcount(), 3);
}

// Any other text in the mode boxes is left alone, and leaves the mode of the click before.
TEST(girders, unknownModeTextsChangeNothing) {
    session s;
    s.start();
    s.type("writefilebox", "ON");
    s.type("wiresolid", "Solid");
    s.takelines();
    s.click("postx0y16");  // no mode yet: neither recorded nor solid
    EXPECT_EQ(session::file(girders1), "(none)");
    EXPECT_EQ(s.takelines().size(), static_cast<std::size_t>(double(linecount1)));
    s.click("wiresolidbtn");
    s.click("writefilebtn");
    EXPECT_TRUE(wiresolid.text == "Solid" && writefilebox.text == "ON");
    s.type("writefilebox", "on");
    s.click("postx0y16");
    s.type("writefilebox", "");
    s.click("postx0y16");
    EXPECT_EQ(recordcount(), 2);
}

TEST(girders, floorsRaiseTheElementAndNameTheFile) {
    struct {
        const char *text, *file;
        double height;
    } const floors[] = {
        {"11", "designs/girders.txt", 0},  // no floor yet: no number in the name
        {"3", "designs/girders3.txt", 256},     {"0", "designs/girders3.txt", 256},
        {"2.5", "designs/girders3.txt", 256},   {"10", "designs/girders10.txt", 1152},
        {"", "designs/girders10.txt", 1152},    {"3x", "designs/girders3.txt", 256},
        {" 2", "designs/girders2.txt", 128},    {"-1", "designs/girders2.txt", 128},
        {"1e1", "designs/girders10.txt", 1152}, {"1", "designs/girders1.txt", 0},
    };
    session s;
    s.start();
    for (const auto& f : floors) {
        s.type("floor", f.text);
        const std::string before = session::file(f.file);
        s.click("postx0y16");
        EXPECT_NE(session::file(f.file), before) << f.text;
        double lowest = 1e9;
        for (int i = 1; i <= ptcount1; ++i) lowest = std::min<double>(lowest, basez[i]);
        EXPECT_NEAR(lowest, f.height, 1e-3) << f.text;
    }
}

TEST(girders, theFloorListFillsTheBox) {
    session s;
    s.start();
    EXPECT_EQ(floorlist.items.front() + floorlist.items.back(), "91");
    s.click("floorbtn");
    s.click("floorbtn");
    EXPECT_TRUE(floorlist.shown);
    s.pick("floorlist", "7");
    EXPECT_TRUE(floor.text == "7" && !floorlist.shown);
}

// The record goes to disk before the element is read; what fails then leaves it there.
TEST(girders, aFailureLeavesTheRecord) {
    session s;
    s.start();
    std::filesystem::remove_all("datah");
    std::filesystem::create_directory("datah");
    EXPECT_EQ(failureof([&] { s.click("postx0y16"); })->kind, failurekind::filenotfound);
    EXPECT_EQ(session::file(girders1), "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n");
    std::filesystem::remove_all("designs");
    EXPECT_EQ(failureof([&] { s.click("postx0y16"); })->kind, failurekind::filenotfound);
}

// A user may edit or delete the file between two clicks.
TEST(girders, everyClickOpensTheFileAnew) {
    session s;
    s.start();
    s.click("postx0y16");
    std::filesystem::remove(girders1);
    session::write(girders1, "edited\n");
    s.click("postx0y16");
    EXPECT_EQ(session::file(girders1), "edited\n\"girder\",1,8,8,41,90,0,0,16,4,64\r\n");
}

// All 329 positions: numbers without a gap, placement as the name spells it, and the recorded middle where the placed
// element's middle really lies, but for panel 155 with its odd Y.
TEST(layouts, recordedMiddlesAreTheElementsMiddles) {
    session s;
    s.start();
    s.click("wiresolidbtn");
    s.click("orange1btn");
    std::map<std::string, std::vector<std::string>> files;
    for (const position& p : allpositions()) {
        const std::string name = positionname(p);
        s.click(name);
        std::istringstream record(session::file("designs/" + std::string(p.of->files) + "1.txt"));
        std::string line;
        for (std::string next; std::getline(record, next);) line = next;
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream fields(line);
        std::string kind;
        int number = 0, x = 0, y = 0, code = 0, turnx = 0, turnz = 0, px = 0, py = 0, face = 0, trailer = 0;
        fields >> kind >> number >> x >> y >> code >> turnx >> turnz >> px >> py >> face >> trailer;
        EXPECT_EQ(number, static_cast<int>(files[kind].size()) + 1) << name;
        files[kind].push_back(line);
        EXPECT_TRUE(name.ends_with("x" + std::to_string(px) + "y" + std::to_string(py))) << name << ": " << line;
        EXPECT_EQ(trailer, 64);

        double low[2] = {1e9, 1e9}, high[2] = {-1e9, -1e9};  // world units
        for (int i = 1; i <= ptcount1; ++i)
            for (const int axis : {0, 1}) {
                const double at = axis == 0 ? basex[i] : basey[i];
                low[axis] = std::min(low[axis], at);
                high[axis] = std::max(high[axis], at);
            }
        EXPECT_NEAR(x, (low[0] + high[0]) / 2 + 488, 8.5) << name;
        if (name == "pan180x784y1168")
            EXPECT_EQ(y, 784);
        else
            EXPECT_NEAR(y, (low[1] + high[1]) / 2 + 680, 8.5) << name;
    }
    EXPECT_EQ(files["\"girder\""].size(), 130U);
    EXPECT_EQ(files["\"panel\""].size(), 164U);
    EXPECT_EQ(files["\"roof\""].size(), 35U);
}

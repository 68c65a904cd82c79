// Axis-cube files: rows of cubes by section, their counts, framing in steps of ten, and the cube button.
#include "data/cubes.h"
#include "render/painter.h"
#include "tests/session.h"

#include <array>

using namespace tessaly;

namespace {

using corner = std::array<double, 3>;
corner base(int i) { return {basex[i], basey[i], basez[i]}; }

constexpr const char* none[] = {"0,0,0,0,0,0,0,-1,0,0",  "0,0,0,0,0,0,0,99,0,0",  "0,0,0,0,0,0,0,199,0,0",
                                "0,0,0,0,0,0,0,299,0,0", "0,0,0,0,0,0,0,399,0,0", "0,0,0,0,0,0,0,499,0,0"};

// A cube file: a row a section (nullptr: no cube), single cubes, framing rows.
std::string cubefile(const std::array<const char*, 6>& rows, const std::string& singles = "",
                     const std::string& framing = "", const std::string& script = "TRAN\nSTOP\n") {
    std::string text = "A test's cubes\nWIRECOLORS:\n6,7,8,9\n";
    for (std::size_t i = 0; i < rows.size(); ++i)
        text += "AUTOCUBE" + std::to_string(i) + "00:\n" + (rows[i] ? rows[i] : none[i]) + "\n";
    return text + "AUTOCUBE600:\n" + singles + "9999,0,0,0,0,0,0,0,0\nAUTOFRAMING1:\n" + framing +
           "0,0,9999\nAUTOFRAMING2:\n0,0,9999\n" + script;
}

void readfile(void (*reader)(), const std::string& text) {
    session::write("datah/az-cubes.txt", text);
    setview(1850, -1850, 550);
    focusx = focusy = focusz = 0.5;
    datafile = "az-cubes.txt";
    reader();
}

}  // namespace

TEST(cubes, rowsMarchAlongTheReadersAxis) {
    struct {
        void (*reader)();
        std::size_t axis;
    } const readers[] = {{readcubex, 0}, {readcubey, 1}, {readcubez, 2}};
    for (const auto& r : readers) {
        session s(ownfolder);
        readfile(r.reader, cubefile({"1,2,3,5,7,9,100,3,4,60", nullptr, "10,20,30,11,21,31,-50,201,0,61", nullptr,
                                     "1,1,1,2,2,2,0,400,0,62", "3,3,3,4,4,4,7,501,0,63"},
                                    "1,8,8,8,9,9,9,5,64\n1,6,6,6,7,7,7,0,65\n"));
        corner third{1, 2, 3}, opposite{5, 7, 9}, second{10, 20, 30};
        third[r.axis] += 300;
        opposite[r.axis] += 300;
        second[r.axis] -= 50;
        EXPECT_EQ(base(1), (corner{1, 2, 3}));  // the first cube stands where the row says
        EXPECT_EQ(base(31), third);
        EXPECT_EQ(base(36), opposite);
        EXPECT_EQ(base(2011), second);
        EXPECT_EQ(base(5001), (corner{3, 3, 3}));
        EXPECT_EQ(base(6011), (corner{6, 6, 6}));

        const double lines[] = {linecount5, linecount6, linecount7, linecount8, linecount9, linecount10};
        EXPECT_EQ(std::vector<double>(lines, lines + 6), (std::vector<double>{0, 48, 24, 36, 24, 0}));
        const double used[] = {ptcount1, ptcount2, ptcount3, ptcount4};
        EXPECT_EQ(std::vector<double>(used, used + 4), (std::vector<double>{1000, 1000, 1020, 20}));
        EXPECT_TRUE(lineend1[49] == 2001 && lineend1[73] == 4001 && lineend1[85] == 5001 && lineend1[109] == 6001);
        EXPECT_TRUE(quadcolour[6] == 60 && quadgrade[4] == 4 && quadgrade[5] == 0 && quadcolour[2011] == 61);
        EXPECT_TRUE(quadcolour[6001] == 64 && quadgrade[6001] == 5 && cubecolour[601] == 65);
        EXPECT_TRUE(wirecolour6 == 6 && wirecolour9 == 9 && drawset == 2);
        // Block 2 is walked: all but the last cube's lines are drawn, and from where their cubes stand.
        EXPECT_EQ(s.lines().size(), 48U + 24 + 36 + 24);
    }
}

TEST(cubes, blocksAtTheirLimits) {
    session s(ownfolder);
    readfile(readcubex, cubefile({"0,0,0,1,1,1,10,99,0,5", nullptr, nullptr, nullptr, nullptr, nullptr}));
    EXPECT_TRUE(linecount6 == 1200 && ptcount1 == 1000 && linecount9 == 0 && ptcount4 == 0);
    EXPECT_EQ(base(991), (corner{990, 0, 0}));
    // A row of more than a hundred runs on into the next section's slots.
    readfile(readcubex,
             cubefile({"0,0,0,1,1,1,10,100,0,5", "0,50,0,1,51,1,10,100,0,6", nullptr, nullptr, nullptr, nullptr}));
    EXPECT_EQ(base(1001), (corner{0, 50, 0}));
    EXPECT_TRUE(linecount6 == 1224 && ptcount1 == 1010);
    EXPECT_EQ(lineend1[1201], 1001);
}

// Rows address the same face of each cube of a row. The end row clears the slot at which the walk before it stopped.
TEST(cubes, framingGoesInStepsOfTen) {
    session s(ownfolder);
    readfile(readcubey, cubefile({"0,0,0,1,1,1,10,5,0,5", nullptr, nullptr, nullptr, nullptr, nullptr}, "",
                                 "32,32,4\n2,25,3\n9,1,8\n"));
    EXPECT_TRUE(framing1[2] == 3 && framing1[12] == 3 && framing1[22] == 3 && framing1[32] == 4 && framing1[9] == 0);
    readfile(readcubey,
             cubefile({"0,0,0,1,1,1,10,5,0,5", nullptr, nullptr, nullptr, nullptr, nullptr}, "", "32,32,4\n2,22,3\n"));
    EXPECT_TRUE(framing1[22] == 3 && framing1[32] == 0);
}

// A report names the row of the section that gave the face its figures.
TEST(cubes, reportsNameTheRowOfTheFace) {
    session s(ownfolder);
    const char *const row = "0,0,0,1,1,1,10,5,0,5", *const black = "0,50,0,1,51,1,10,100,0,300";
    const auto painted = [&](const char* first, const char* framing) {
        return failureof([&] {
            readfile(readcubex, cubefile({first, nullptr, nullptr, nullptr, nullptr, nullptr}, "", framing));
            paintsolids();
        });
    };
    expectfailure(painted(black, ""), failurekind::subscript, "line 5, field 10 (AUTOCUBE000:): palette");
    expectfailure(painted(row, "2,2,3\n1,41,1501\n42,52,3\n"), failurekind::subscript,
                  "line 20, field 3 (AUTOFRAMING1:)");
}

TEST(cubes, ownScriptRunsUnlessTheFileWasOpened) {
    session s(ownfolder);
    const std::string text = cubefile({"1,1,1,2,2,2,1,0,0,5", nullptr, nullptr, nullptr, nullptr, nullptr}, "", "",
                                      "TRAN\nTRANSLATE:\n1,8,10,0,0\n9999,0,0,0,0\nTRAN\nSTOP\n");
    readfile(readcubez, text);
    EXPECT_EQ(base(1), (corner{11, 1, 1}));
    const auto drawn = s.takelines().size();
    drawset = 1;
    openinput(1, "datah\\az-cubes.txt", "test");
    preopened = 4;
    readcubez();
    EXPECT_EQ(base(1), (corner{1, 1, 1}));
    EXPECT_TRUE(drawn == 12 && s.lines().empty() && drawset == 1);
    EXPECT_EQ(failureof(readcubex)->kind, failurekind::filealreadyopen);  // another reader's value opens its own
}

// The cube button leaves drawset to the last element. With 1, cubes of block 2 are drawn displaced by the focus and
// stand right only from the next drawing on.
TEST(cubes, theCubeButtonDisplacesBlockTwo) {
    session s;
    s.start();
    s.click("postbeambtn");
    s.click("postx0y16");
    std::filesystem::remove_all("datah");
    std::filesystem::create_directory("datah");
    session::write("datah/az-cube.txt", cubefile({"100,100,0,150,150,50,1,0,0,5", nullptr,
                                                  "100,100,0,150,150,50,1,200,0,5", nullptr, nullptr, nullptr}));
    const double eye = perpx;
    s.takelines();
    s.click("displaycubebtn");
    const auto first = s.takelines();
    ASSERT_EQ(first.size(), 24U);
    EXPECT_NE(first[0].y1, first[12].y1);  // the same cube twice, the second one 280 too high
    EXPECT_LT(first[12].y1, first[0].y1);
    EXPECT_EQ(ptz[2001], -280);
    EXPECT_TRUE(drawset == 1 && viewprompt.is("AUTOMA") && perpx == eye && preopened == 0 && !layoutgirder.shown);
    drawset = 2;
    s.click("displaycubebtn");
    const auto second = s.takelines();
    EXPECT_EQ(second[0], first[0]);
    EXPECT_EQ(second[12].x1, first[0].x1);
    EXPECT_EQ(second[12].y1, first[0].y1);
}

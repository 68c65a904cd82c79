// What no press reaches of the readers of data files: sections at their limits, element and cube files that are read by
// no place's rule, and the report of a start somewhere else, which tells where.
#include "data/cubes.h"
#include "data/elements.h"
#include "render/painter.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

void readfile(const elementtext& e, int mode) {
    session::write("datah/st-test.txt", e);
    datafile = "st-test.txt";
    placemode = mode;
    readelements();
}

std::string rows(int count, const std::string& row) {
    std::string all;
    for (; count > 0; --count) all += row;
    return all;
}

}  // namespace

// The row after the last one that there is room for is free text like the end row behind it.
TEST(readers, sectionsWithoutAnEndRowStopAtTheirLimit) {
    session s(ownfolder);
    setview(1850, -1850, 550);
    const std::string cubes = rows(201, "1,10,20,30,11,21,31,0,5\n");
    readfile(elementtext{.cubes400 = cubes, .cubes600 = cubes, .planes = rows(7001, "1,1,1,1,1,1,5\n")}, 3);
    EXPECT_EQ(joined(ptcount3, linecount6, ptcount4, linecount7), "2000 2400 2000 2400");
    EXPECT_EQ(joined(quad1[7000], quad1[7001]), "1 7001");
    readfile(elementtext{.points = rows(10001, "1,0,0,0\n"), .lines = {rows(20001, "1,2\n")}}, 3);
    EXPECT_EQ(joined(ptcount1, linecount1, drawset), "0 0 1");
    readfile(elementtext{.script = "TRAN\nXTRANSFORMATIONS:\n" + rows(10000, "3,5\n") + "3,6\nTRAN\nTRANSLATE:\n" +
                                   rows(7001, "4,4,1,0,0\n") + "TRAN\nSTOP\n"},
             0);
    EXPECT_EQ(joined(basex[3], basex[4]), "5 7000");
}

// A placement that nobody knows leaves the file open: the element after it fails.
TEST(readers, placementsThatNoPressAsksFor) {
    session s(ownfolder);
    setview(1850, -1850, 550);
    const elementtext e{.points = "1,1,2,3\n2,50,60,70\n",
                        .lines = {"1,2\n"},
                        .script = "TRAN\nTRANSLATE:\n1,1,10,0,0\n9999,0,0,0,0\nTRAN\nSTOP\n"};
    readfile(e, 0);
    EXPECT_EQ(joined(basex[1], s.takelines().size()), "11 1");
    readfile(e, 6);
    EXPECT_TRUE(s.lines().empty());
    EXPECT_EQ(failureof([&] { readfile(e, 3); })->kind, failurekind::filealreadyopen);
}

// A cube file by itself: its script runs, and all four blocks are drawn. Were its faces painted, a report would name
// the row of the section that gave a face its colour or its framing.
TEST(readers, cubesThatNoGroupShows) {
    std::string text = "WIRECOLORS:\n6,7,8,9\n";
    for (const char* key : {"000:", "100:", "200:", "300:", "400:", "500:"})
        text += std::string("AUTOCUBE") + key + "\n1,2,3,5,7,9,10," + key[0] + "00,4,60\n";
    text +=
        "AUTOCUBE600:\n9999,0,0,0,0,0,0,0,0\nAUTOFRAMING1:\n2,2,3\n1,21,4\n3,3,5\n0,0,9999\nAUTOFRAMING2:\n0,0,9999\n"
        "TRAN\nTRANSLATE:\n1,1,10,0,0\n9999,0,0,0,0\nTRAN\nSTOP\n";
    const auto paint = [](auto readcubes, const std::string& cubes) {
        session::write("datah/az-test.txt", cubes);
        datafile = "az-test.txt";
        readcubes();
        paintsolids();
    };
    session s(ownfolder);
    setview(1850, -1850, 550);
    focusx = focusy = focusz = 0.5;
    for (const auto readcubes : {readcubex, readcubey, readcubez}) {
        drawset = 1;
        paint(readcubes, text);
        EXPECT_EQ(joined(basex[1], drawset, ptz[2009]), "11 2 -0.5");
    }
    expectfailure(failureof([&] { paint(readcubez, replaced(text, "100,4,60", "100,4,300")); }), failurekind::subscript,
                  "AUTOCUBE100:, tenth number: palette");
    expectfailure(failureof([&] { paint(readcubez, replaced(text, "1,21,4", "1,21,1501")); }), failurekind::subscript,
                  "AUTOFRAMING1:, face 1: framing");
}

// A record that cannot be drawn is found in the user's own file, although a replay reads it from a temporary copy.
TEST(readers, reportsOfRecordsNameTheDesignFile) {
    const std::string post = "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";
    const struct {
        const char *bad, *button, *firstlist, *secondlist, *report;
    } cases[] = {
        {"\"girder\",2,8,8,41,90,0,far,16,4,64", "autosolidsingle", "autofile5", "",
         "designs\\girders1.txt, line 2, field 8"},
        {"\"girder\",2,8,8,41,90,0,far,16,4,64", "autosolidbtn", "autofile3", "autofile4",
         "designs\\girders1.txt, line 2, field 8"},
        {"\"girder\",2,8,8,41,90,0,0,\"low\",4,64", "autowirebtn", "autofile1", "autofile2",
         "designs\\girders1.txt, line 2, field 9"},
        {"\"girder\",2,8,8,99,90,0,0,16,4,64", "autosolidsingle", "autofile5", "",
         "designs\\girders1.txt, line 1, field 5: 99 is not the code of a girder (41, 42, 43)"},
        {"\"panel\",2,8,8,\"19\",90,0,0,16,4,64", "autowirebtn", "autofile1", "autofile2",
         "line 1, field 5: \"19\" is not the code of a panel"},
        {"\"tower\",2,8,8,41,90,0,0,16,4,64", "autosolidbtn", "autofile3", "autofile4",
         "line 1, field 1: \"tower\" is not a kind of element"},
    };
    for (const auto& c : cases) {
        const bool unknown = std::string(c.report).find("is not") != std::string::npos;
        session s;
        session::write("designs/girders1.txt", (unknown ? "" : post) + c.bad + "\r\n");
        session::write("designs/panels1.txt", "");
        s.start();
        s.click(c.button);
        const auto pick = [&] {
            s.pick(c.firstlist, "girders1.txt");
            if (*c.secondlist) s.pick(c.secondlist, "panels1.txt");
        };
        expectfailure(failureof(pick), unknown ? failurekind::invalidcall : failurekind::typemismatch, c.report);
    }
}

// A start in a wrong or damaged folder: the load of the main window fails with a report before anything is drawn.
TEST(readers, foldersMustExist) {
    namespace fs = std::filesystem;
    const struct {
        void (*damage)();
        failurekind kind;
        const char* report;
    } cases[] = {
        {[] { fs::remove("designs"); }, failurekind::filenotfound, "the folder designs is missing: make it"},
        {[] { fs::remove("bmps"); }, failurekind::filenotfound, "the folder bmps is missing: make it"},
        {[] {
             fs::remove("designs");
             fs::create_symlink("designs", "designs");
         },
         failurekind::fileaccess, "designs\\ (folder)"},
        {[] {
             for (const char* folder : {"designs", "datah"}) fs::remove_all(folder);
         },
         failurekind::filenotfound, "is not a working folder: start the program with ./run.sh"},
        {[] { fs::remove_all(fs::current_path()); }, failurekind::filenotfound, "the working folder was deleted"},
    };
    for (const auto& c : cases) {
        session s;
        c.damage();
        expectfailure(failureof([&] { s.start(); }), c.kind, c.report);
        EXPECT_TRUE(s.lines().empty());
    }
}

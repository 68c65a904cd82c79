// The readers of data files where no click leads: sections at their limits, unknown placements, cube files that no
// group shows; and the reports of design files and of a damaged working folder.
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

// The row after the last one that fits is free text, as the end row after it is.
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

// An unknown placement leaves the file open, and the next element fails.
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

// The script of a cube file runs, and all four blocks are drawn. If its faces were painted, a report would name the row
// that gave a face its colour or framing.
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

// Catches a report that names the temporary copy that a replay reads.
TEST(readers, reportsOfRecordsNameTheDesignFile) {
    const std::string post = "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";
    const struct {
        std::string record, button, report;
    } rows[] = {
        {"\"girder\",2,8,8,41,90,0,far,16,4,64", "autosolidsingle", "field 8"},
        {"\"girder\",2,8,8,41,90,0,far,16,4,64", "autosolidbtn", "field 8"},
        {"\"girder\",2,8,8,41,90,0,0,\"low\",4,64", "autowirebtn", "field 9"},
        {"\"girder\",2,8,8,99,90,0,0,16,4,64", "autosolidsingle",
         "field 5: 99 is not the code of a girder (41, 42, 43)"},
        {"\"panel\",2,8,8,\"19\",90,0,0,16,4,64", "autowirebtn", "field 5: \"19\" is not the code of a panel"},
        {"\"tower\",2,8,8,41,90,0,0,16,4,64", "autosolidbtn", "field 1: \"tower\" is not a kind of element"},
    };
    for (const auto& row : rows) {
        session s;
        const bool unknown = row.report.find("is not") != std::string::npos;  // not after an element that is known
        session::write("designs/girders1.txt", (unknown ? "" : post) + row.record + "\r\n");
        session::write("designs/panels1.txt", "");
        s.start();
        s.click(row.button);
        const auto failed = failureof([&] {
            for (const control* first : {&autofile1, &autofile3, &autofile5})
                if (first->shown) s.pick(first->name, "girders1.txt");
            for (const control* second : {&autofile2, &autofile4})
                if (second->shown) s.pick(second->name, "panels1.txt");
        });
        expectfailure(failed, unknown ? failurekind::invalidcall : failurekind::typemismatch,
                      std::string("designs\\girders1.txt, line ") + (unknown ? "1, " : "2, ") + row.report);
    }
}

// A start in a wrong or damaged folder: the load of the main window fails with a report before anything is drawn.
TEST(readers, foldersMustExist) {
    const struct {
        const char* damage;
        failurekind kind;
        const char* report;
    } rows[] = {
        {"rm -r designs", failurekind::filenotfound, "the folder designs is missing: make it"},
        {"rm -r bmps", failurekind::filenotfound, "the folder bmps is missing: make it"},
        {"rm -r designs; ln -s designs designs", failurekind::fileaccess, "designs\\ (folder)"},
        {"rm -r designs datah", failurekind::filenotfound, "is not a working folder: start the program with ./run.sh"},
        {"rm -r \"$PWD\"", failurekind::filenotfound, "the working folder was deleted"},
    };
    for (const auto& row : rows) {
        session s;
        ASSERT_EQ(std::system(row.damage), 0);
        expectfailure(failureof([&] { s.start(); }), row.kind, row.report);
        EXPECT_TRUE(s.lines().empty());
    }
}

// NOT-BUGS: A number that I changed has no effect
TEST(readers, recordsHaveNumbersThatDrawNothing) {
    session s;
    s.start();
    s.write("designs/roofs1.txt", "\"roof\",1,104,104,0,0,0,0,0,4,64\r\n\"roof\",1,900,900,0,90,180,0,0,7,99\r\n");
    s.click("autowiresingle");
    s.takelines();
    s.pick("autofile", "roofs1.txt");
    const std::vector<drawnline> lines = s.takelines(), second(lines.begin() + 12, lines.end());
    EXPECT_EQ(std::vector<drawnline>(lines.begin(), lines.begin() + 12), second);
}

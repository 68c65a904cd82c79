// The readers of data files: sections that fill the tables, placements that no click selects, and a damaged working
// folder.
#include "data/cubes.h"
#include "data/elements.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

void readfile(const elementtext& e, int mode) {
    session::write("datah/st-test.txt", e);
    datafile = "st-test.txt";
    placemode = mode;
    readelements();
}

}  // namespace

// The row after the last one that fits is free text, and so is the end row after it. resetworld clears 1..7000 (700
// of cubecolour) and the counts. The fields before a failure stay in the tables.
TEST(readers, sectionsStopAtTheirLimitAndAreCleared) {
    session s(inownfolder);
    setview(1850, -1850, 550);
    const std::string cubes = repeated(201, "1,10,20,30,11,21,31,0,5\n");
    readfile(elementtext{.cubes400 = cubes, .cubes600 = cubes, .planes = repeated(7001, "1,1,1,1,1,1,5\n")}, 3);
    EXPECT_EQ(joined(ptcount3, linecount6, ptcount4, linecount7), "2000 2400 2000 2400");
    EXPECT_EQ(joined(quad1[7000], quad1[7001]), "1 7001");
    for (const int i : {0, 700, 701}) cubecolour.set(i, 5);
    for (const int i : {0, 7000, 7001}) basex.set(i, 5);
    resetworld();
    EXPECT_EQ(joined(quad1[7000], basex[7000], cubecolour[700], linecount7, ptcount3), "0 0 0 0 0");
    EXPECT_EQ(joined(quad1[7001], basex[0], basex[7001], cubecolour[0], cubecolour[701]), "7001 5 5 5 5");
    readfile(elementtext{.points = repeated(10001, "1,0,0,0\n"), .lines = {repeated(20001, "1,2\n")}}, 3);
    EXPECT_EQ(joined(ptcount1, linecount1, drawset), "0 0 1");
    session::write("datah/st-test.txt", "WIRECOLORS:\n1,2,3,4,5,6,7\nSTANDARD:\n1,20,30\n");
    EXPECT_EQ(failureof(readelements)->kind, failurekind::inputpastend);
    EXPECT_EQ(joined(ptx[1], pty[1], basex[1]), "20 30 0");
}

TEST(readers, unusualPlacements) {
    session s(inownfolder);
    setview(1850, -1850, 550);
    const elementtext e{.points = "1,1,2,3\n2,50,60,70\n",
                        .lines = {"1,2\n"},
                        .script = "TRAN\nXTRANSFORMATIONS:\n" + repeated(10000, "3,5\n") +
                                  "3,6\nTRAN\nTRANSLATE:\n1,1,10,0,0\n" + repeated(7000, "4,4,1,0,0\n") +
                                  "TRAN\nSTOP\n"};
    readfile(e, 0);  // runs the script
    EXPECT_EQ(joined(basex[1], basex[3], basex[4], s.takelines().size()), "11 5 6999 1");
    readfile(e, 6);  // an unknown placement: the file stays open
    EXPECT_TRUE(s.takelines().empty());
    EXPECT_EQ(failureof([&] { readfile(e, 3); })->kind, failurekind::filealreadyopen);
}

// An axis-cube file that is not part of the scene: its script runs, and all four blocks are drawn.
TEST(readers, cubesOutsideTheScene) {
    session s;
    setview(1850, -1850, 550);
    s.write("datah/az-test.txt",
            replaced(s.file("datah/az-cube.txt"), "TRAN\n", "TRAN\nTRANSLATE:\n1,1,10,0,0\n9999,0,0,0,0\nTRAN\n"));
    datafile = "az-test.txt";
    for (const auto readcubes : {readcubex, readcubey, readcubez}) {
        drawset = 1;
        readcubes();
        EXPECT_EQ(joined(basex[1], drawset), "-478 2");
    }
}

// A start in a wrong or damaged folder: the load of the main window fails with a report before anything is drawn. The
// session missing-folders shows other reports.
TEST(readers, foldersMustExist) {
    const struct {
        const char* damage;
        failurekind kind;
        const char* report;
    } rows[] = {
        {"rm -r designs; ln -s designs designs", failurekind::fileaccess, "designs\\ (folder)"},
        {"rm -r designs datah", failurekind::filenotfound, "is not a working folder: start the program with ./run.sh"},
        {"rm -r \"$PWD\"", failurekind::filenotfound, "the working folder was deleted"},
    };
    for (const auto& row : rows) {
        session s;
        ASSERT_EQ(std::system(row.damage), 0);
        expectfailure(failureof([&] { s.start(); }), row.kind, row.report);
        EXPECT_TRUE(s.takelines().empty());
    }
}

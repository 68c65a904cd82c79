// The girder and panel file reader: two files through one sort, each record at its own floor's height.
#include "tests/replaysession.h"

using namespace tessaly;

namespace {

const std::string nearest = post(1, 960, 312), farther = post(3, 8, 400), farthest = post(4, 8, 1352);
const std::string asnear = "\"panel\",7,856,208,1,0,0,856,208,4,64\r\n";  // as far from the eye as the nearest

std::string temp() { return session::file("nonuser/temp.txt"); }

}  // namespace

TEST(combinedreader, twoPicksShowAndHide) {
    replaysession s;
    s.design("girders1.txt", nearest);
    s.click("autowirebtn");
    EXPECT_TRUE(escapefilelistbtn.shown && selectgirderfile.shown && autofile1.shown && autohintbox.shown);
    s.design("panels2.txt", panel);
    s.pick("autofile1", "girders1.txt");
    EXPECT_FALSE(escapefilelistbtn.shown || selectgirderfile.shown || autofile1.shown);
    EXPECT_TRUE(selectpanelfile.shown && autofile2.shown && autohintbox.shown && selectedbox.shown);
    EXPECT_EQ(selectedbox.text, "You selected:  girders1.txt");
    s.pick("autofile2", "panels2.txt");
    EXPECT_FALSE(selectpanelfile.shown || autofile2.shown || autohintbox.shown || selectedbox.shown);
    s.click("autosolidbtn");
    EXPECT_TRUE(autofile3.shown && selectgirderfile.shown);
    s.pick("autofile3", "girders1.txt");
    EXPECT_TRUE(autofile4.shown && selectpanelfile.shown);
    s.pick("autofile4", "panels2.txt");
    EXPECT_FALSE(autofile4.shown || selectpanelfile.shown || autohintbox.shown || progressbar.shown);
}

// The three forms of the temporary files, of a girder on floor 2 with a panel on floor 1.
TEST(combinedreader, temporaryFilesCarryTheHeightOfEachRecord) {
    replaysession s;
    s.design("girders2.txt", post(1, 8, 8));
    s.design("panels1.txt", panel);
    std::filesystem::remove("datah/st-panels-1or-full.txt");
    EXPECT_TRUE(failureof([&] { s.combinedwire("girders2.txt", "panels1.txt"); }));  // the trap is spent
    EXPECT_EQ(temp(), "128,\"girder\",1,8,8,41,90,0,0,16,4,64\r\n0,\"panel\",1,0,104,1,0,270,0,208,2,64\r\n");
    forgetchannels();
    std::filesystem::remove("nonuser/temp.txt");
    EXPECT_TRUE(failureof([&] { s.combinedsolid("girders2.txt", "panels1.txt"); }));
    EXPECT_EQ(temp(), "1,\"girder\",1,8,8,41,90,0,0,16,4,128\r\n1,\"panel\",1,0,104,1,0,270,0,208,2,0\r\n");
    EXPECT_EQ(s.file("nonuser/temp2.txt"),
              "1,\"panel\",1,-488,-576,1,0,270,0,208,2,0\r\n2,\"girder\",1,-480,-672,41,90,0,0,16,4,128\r\n");
    EXPECT_TRUE(progressbar.shown);
    forgetchannels();
    std::filesystem::remove("nonuser/temp.txt");
    s.design("girders2.txt", ",1,8,8,41,90,0,0,16,4,64\r\n12,2,8,8,41,90,0,0,16,4,64\r\n");  // a kind is a text
    s.click("autowirebtn");
    s.pick("autofile1", "girders2.txt");
    EXPECT_EQ(temp(), "128,\"\",1,8,8,41,90,0,0,16,4,64\r\n128,\"12\",2,8,8,41,90,0,0,16,4,64\r\n");
}

TEST(combinedreader, oneSortOverBothFilesAtTheirOwnHeights) {
    replaysession s;
    s.design("girders2.txt", nearest + farthest);
    s.design("panels1.txt", asnear);
    s.design("girders1.txt", farther);
    s.design("girdenn2.txt", nearest);
    s.design("girdeff2.txt", farthest);
    const auto near = s.wire("girdenn2.txt"), far = s.wire("girdeff2.txt"), flat = s.wire("panels1.txt");
    panelcode = 19;
    EXPECT_EQ(s.combinedwire("girders2.txt", "panels1.txt"), near + far + flat);
    EXPECT_EQ(s.combinedsolid("girders2.txt", "panels1.txt"), far + near + flat);  // ties: the first file's first
    EXPECT_EQ(s.combinedsolid("panels1.txt", "girders2.txt"), far + flat + near);
    EXPECT_EQ(s.combinedsolid("girders2.txt", "girders1.txt"), far + s.wiresof(farther) + near);
    EXPECT_EQ(panelcode, 19);
    EXPECT_EQ(floorname.text(), "1");  // of the second file
    EXPECT_EQ(placez, 128);            // of the last record, the nearest
    EXPECT_EQ(firstfilename.text() + ' ' + secondfilename.text(), "girders2.txt girders1.txt");
    EXPECT_EQ(perpx, 1850);
    EXPECT_EQ(temp() + s.file("nonuser/temp2.txt"), "(none)(none)");
}

TEST(combinedreader, sameFileTwiceAndEmptyFiles) {
    replaysession s;
    s.design("girders1.txt", nearest + farther);
    s.design("roofs1.txt", "");
    EXPECT_EQ(s.combinedsolid("girders1.txt", "girders1.txt"), s.wiresof(farther + farther + nearest + nearest));
    EXPECT_EQ(s.combinedsolid("girders1.txt", "roofs1.txt"), s.wiresof(farther + nearest));
    EXPECT_EQ(s.combinedwire("roofs1.txt", "girders1.txt"), s.wiresof(nearest + farther));
    EXPECT_TRUE(s.combinedsolid("roofs1.txt", "roofs1.txt").empty());
}

// Starting over leaves the abandoned pick's records in front: they are shown, and the last of the new are lost.
TEST(combinedreader, startingOverKeepsTheFirstPicksRecords) {
    replaysession s;
    s.design("girders1.txt", farthest);
    s.design("girders2.txt", nearest);
    s.click("autowirebtn");
    s.pick("autofile1", "girders1.txt");
    EXPECT_EQ(s.combinedwire("girders2.txt", "girders2.txt"), s.wiresof(farthest) + s.wire("girders2.txt"));
    EXPECT_EQ(temp(), "(none)");
}

TEST(combinedreader, limits) {
    replaysession s;
    std::string thousand;
    for (int i = 0; i < 1000; ++i) thousand += nearest;
    s.design("girders1.txt", thousand + nearest);  // a record more than a file may have
    s.design("girders2.txt", nearest);
    EXPECT_EQ(s.combinedwire("girders1.txt", "girders1.txt").size(), 2000);
    s.design("roofs1.txt", "");
    EXPECT_EQ(s.combinedsolid("girders1.txt", "roofs1.txt").size(), 1000);
    const auto failed = failureof([&] { s.combinedsolid("girders1.txt", "girders2.txt"); });
    EXPECT_EQ(failed.value().kind, failurekind::subscript);
}

// The name is turned into a floor after the file was read, and before anything is written.
TEST(combinedreader, wrongNameFailsBehindItsReading) {
    replaysession s;
    s.design("house.txt", nearest + farther);
    EXPECT_EQ(failureof([&] { s.combinedwire("house.txt", ""); }).value().kind, failurekind::typemismatch);
    EXPECT_EQ(combinedcount, 2);
    EXPECT_EQ(temp(), "(none)");
}

// The single file reader: order, limits, leftovers and failures of its replays.
#include "building/replay.h"
#include "tests/replaysession.h"

#include <fcntl.h>
#include <sys/stat.h>

using namespace tessaly;

namespace {

// Posts in view of the eye at (1850, -1850), nearest first; the first two are equally far from it.
const std::string nearest = post(1, 960, 312), asnear = post(2, 856, 208), farther = post(3, 8, 400),
                  farthest = post(4, 8, 1352);

failurekind failingkind(const std::optional<failure>& f) { return f.value().kind; }

bool allfilesalike = false;  // what the system tells of them, but for their size

int told(int outcome, struct stat* of) {
    if (allfilesalike) of->st_ino = 1, of->st_mtim = of->st_ctim = {1000, 0};
    return outcome;
}

}  // namespace

// In the place of the system's own.
extern "C" int stat(const char* path, struct stat* of) noexcept { return told(fstatat(AT_FDCWD, path, of, 0), of); }
extern "C" int fstat(int handle, struct stat* of) noexcept { return told(fstatat(handle, "", of, AT_EMPTY_PATH), of); }

// Where a file system counts in whole seconds and gives numbers again, the temporary file of a second replay is not to
// be told from that of the first.
TEST(singlereader, replayFromAnotherSideHasItsOwnOrder) {
    replaysession s;
    s.design("girders1.txt", nearest + farther);
    setview(-1850, 1850, 550);
    const auto fromthere = s.wiresof(nearest + farther);
    setview(1850, -1850, 550);
    const auto fromhere = s.wiresof(farther + nearest);
    allfilesalike = true;
    EXPECT_EQ(s.solid("girders1.txt"), fromhere);
    setview(-1850, 1850, 550);
    EXPECT_EQ(s.solid("girders1.txt"), fromthere);
}

TEST(singlereader, wiresKeepTheOrderOfTheFileAndSolidGoesFarthestFirst) {
    replaysession s;
    s.design("girders1.txt", asnear + farthest + nearest + farther);
    EXPECT_EQ(s.wire("girders1.txt"),
              s.wiresof(asnear) + s.wiresof(farthest) + s.wiresof(nearest) + s.wiresof(farther));
    EXPECT_EQ(s.solid("girders1.txt"), s.wiresof(farthest + farther + asnear + nearest));  // ties in the file's order
    EXPECT_EQ(s.file("nonuser/temp.txt"), "(none)");
    EXPECT_EQ(rotx, 0);
    EXPECT_EQ(perpx, 1850);
}

TEST(singlereader, controlsComeAndGo) {
    replaysession s;
    s.click("autowiresingle");
    EXPECT_TRUE(autofile.shown && escapefilelistbtn.shown);
    s.design("girders1.txt", nearest + farther);
    s.click("autosolidsingle");  // reads the folder again
    EXPECT_TRUE(autofile5.shown);
    s.pick("autofile5", "girders1.txt");
    EXPECT_FALSE(autofile5.shown || escapefilelistbtn.shown || progressbar.shown);
    EXPECT_TRUE(autofile.shown);
    const auto row = [](int y, std::uint8_t r, std::uint8_t g, std::uint8_t b) {
        return drawnline{1, static_cast<float>(y), 17, static_cast<float>(y), {r, g, b}};
    };
    const auto& strip = s.progress.drawn;
    ASSERT_EQ(strip.size(), 701 + 12 + 2);
    EXPECT_TRUE(strip[0] == row(700, 100, 100, 100) && strip[700] == row(0, 100, 100, 100));
    EXPECT_TRUE(strip[701] == row(700, 200, 200, 200) && strip[712] == row(689, 200, 200, 200));
    EXPECT_TRUE(strip[713] == row(697, 250, 50, 50) && strip[714] == row(693, 250, 50, 50));
}

// A record within a unit of the eye's plan position is never chosen: its slot replays what an earlier sort left there.
TEST(singlereader, recordAtTheEyeLeavesItsSlotToAnEarlierSort) {
    replaysession s;
    setview(8 - 488, 8 - 680, 500);
    const std::string ateye = post(1, 8, 8), zeronumber = post(0, 960, 312);
    s.design("girders1.txt", ateye + farther);
    EXPECT_EQ(s.solid("girders1.txt"),
              s.wiresof(farther + "\"\",,,,,,,,,,\r\n"));  // record 0: empty fields, the same file
    s.design("girders1.txt", farther + nearest + farthest);
    s.solid("girders1.txt");  // rdorder 3, 2, 1 or 3, 1, 2
    const int second = static_cast<int>(rdorder[2]);
    s.design("girders1.txt", ateye + zeronumber + farther);
    const std::string records[] = {"", ateye, zeronumber, farther};
    EXPECT_EQ(s.solid("girders1.txt"), s.wiresof(farther + records[second] + records[static_cast<int>(rdorder[3])]));
}

// Bytes of the temporary file, seen where an element file is missing: the one trap is spent, the program ends.
TEST(singlereader, solidReplayFailsAtAnElementFileAndLeavesItsTemporaryFile) {
    replaysession s;
    std::filesystem::remove("datah/st-post.txt");
    s.design("girders1.txt", post(1, 8, 8) + post(2, 8, 1352));
    EXPECT_EQ(failingkind(failureof([&] { s.solid("girders1.txt"); })), failurekind::filenotfound);
    EXPECT_EQ(s.file("nonuser/temp.txt"), "1,2,-480,672,41,90,0,0,1360,4,64\r\n2,1,-480,-672,41,90,0,0,16,4,64\r\n");
    std::filesystem::remove("nonuser/temp.txt");
    forgetchannels();
    s.design("roofs3.txt", "\"roof\",1,104,104,0,0,0,0,0,4,65\r\n");
    std::filesystem::remove("datah/st-roof.txt");
    EXPECT_TRUE(failureof([&] { s.solid("roofs3.txt"); }));
    EXPECT_EQ(s.file("nonuser/temp.txt"), "1,1,-384,-576,0,0,0,0,0,4,64\r\n");  // a girder's trailer, read before
}

TEST(singlereader, leftTemporaryFileStandsInFront) {
    replaysession s;
    s.design("girders1.txt", nearest + farther);
    s.write("nonuser/temp.txt", "1,4,-480,672,41,90,0,0,1360,4,64\r\n");
    EXPECT_EQ(s.solid("girders1.txt"), s.wiresof(farthest + farther));  // stale first, the last one lost
    EXPECT_EQ(s.file("nonuser/temp.txt"), "(none)");
    std::filesystem::remove("nonuser");
    EXPECT_EQ(failingkind(failureof([&] { s.solid("girders1.txt"); })), failurekind::filenotfound);
}

TEST(singlereader, emptyFileLeavesTheEyeAbsolute) {
    replaysession s;
    focusx = 100;
    s.design("girders1.txt", "");
    EXPECT_TRUE(s.solid("girders1.txt").empty());
    EXPECT_EQ(s.progress.drawn.size(), 701 + 4);
    EXPECT_EQ(perpx, 1950);
    s.design("girders1.txt", nearest);
    s.wire("girders1.txt");
    EXPECT_EQ(perpx, 1850);
}

// The trap of a wire replay closes channel 2 only.
TEST(singlereader, brokenElementFileEndsTheWiresAndStaysOpen) {
    replaysession s;
    s.design("girders1.txt", nearest + "\"girder\",49,8,104,42,0,0,0,16,4,64\r\n" + farther);
    s.write("datah/st-beam.txt", "WIRECOLORS:\n1,2\n");
    EXPECT_EQ(s.wire("girders1.txt"), s.wiresof(nearest));
    s.wire("girders1.txt");
    EXPECT_TRUE(s.wire("girders1.txt").empty());  // a replay of wires traps the open channel too
    EXPECT_EQ(failingkind(failureof([&] { s.click("postx0y16"); })), failurekind::filealreadyopen);

    forgetchannels();
    std::filesystem::remove("datah/st-beam.txt");
    EXPECT_EQ(s.wire("girders1.txt"), s.wiresof(nearest));  // missing: channel 1 is free
    EXPECT_EQ(failureof([&] { s.click("postx0y16"); }), std::nullopt);
}

TEST(singlereader, namesGiveFloorAndClass) {
    replaysession s;
    const auto floorof = [&](const std::string& name, const std::string& record) {
        s.design(name, record);
        EXPECT_EQ(s.wire(name).size(), 1) << name;
        EXPECT_EQ(secondfilename.text(), name);
        return floorname.text() + ' ' + placez.text();
    };
    EXPECT_EQ(floorof("roofs3.txt", roof), "3 256");
    EXPECT_EQ(floorof("girde1s2.txt", nearest), "2 128");
    EXPECT_EQ(floorof("girders10.txt", nearest), "1 0");
    EXPECT_EQ(floorof("girder10.txt", nearest), "10 1152");
    EXPECT_EQ(floorof("panels7.txt", nearest), "7 768");  // the name's class decides: code 41 is no panel
    EXPECT_EQ(elementkind.text(), "girder");
    EXPECT_EQ(placemode, 1);
    for (const char* name : {"house1.txt", "Girders1.txt", "girders.txt"}) {
        s.design(name, nearest);
        EXPECT_EQ(failingkind(failureof([&] { s.wire(name); })), failurekind::typemismatch) << name;
        EXPECT_EQ(secondfilename.text(), name);
    }
}

TEST(singlereader, aThousandSolidTenThousandWires) {
    replaysession s;
    std::string records;
    for (int i = 1; i <= 10001; ++i) records += nearest;
    s.design("girders1.txt", records);
    EXPECT_EQ(s.wire("girders1.txt").size(), 10000);
    EXPECT_EQ(s.solid("girders1.txt").size(), 1000);
}

TEST(singlereader, blankLinesShiftTheFields) {
    replaysession s;
    s.design("girders1.txt", nearest + "\r\n");
    EXPECT_EQ(s.wire("girders1.txt"), s.wiresof(nearest));
    s.wire("girders1.txt");
    EXPECT_TRUE(elementkind.is(""));  // of the half record at the end
    EXPECT_EQ(s.solid("girders1.txt"), s.wiresof(nearest));
    s.design("girders1.txt", nearest + "\r\n" + farther + farther);
    EXPECT_EQ(s.wire("girders1.txt").size(), 3);  // the second and third begin a field early, the fourth breaks off
    EXPECT_EQ(elementkind, 64);                   // a trailer, where the fourth kind was looked for
    EXPECT_EQ(failingkind(failureof([&] { s.solid("girders1.txt"); })), failurekind::typemismatch);
}

// Records as text, and codes turned back into element files.
#include "building/designfiles.h"
#include "building/records.h"
#include "tests/session.h"

using namespace tessaly;

TEST(designfiles, recordsQuoteTextsAndLeaveNumbersBare) {
    session s;
    EXPECT_EQ(recordline({"panel", 1, -0.5, 90, value(), "", "1"}), "\"panel\",1,-0.5,90,,\"\",\"1\"\r\n");
    EXPECT_EQ(recordline({value(), 2}), ",2\r\n");
}

TEST(designfiles, codesTheTableDoesNotKnow) {
    session s;
    struct {
        value kind, code;
        const char* file;
        int mode;
    } const cases[] = {
        {"girder", 41, "st-post.txt", 2},
        {"girder", 42, "st-beam.txt", 3},
        {"girder", 43, "st-beam.txt", 4},
        {"girder", 44, "before", 9},
        {"roof", 41, "st-roof.txt", 5},
        {"roof", "x", "st-roof.txt", 5},
        {"panel", 25, "before", 1},
        {"panel", 39, "before", 1},
        {"panel", "x", "before", 1},
        {"panel", 0, "before", 1},
        {"panel", 38, "st-panels-4door-both.txt", 1},
        {"Girder", 41, "before", 9},
        {"", 1, "before", 9},
        {"panel", 1.5, "before", 1},
    };
    for (const auto& c : cases) {
        datafile = "before";
        placemode = 9;
        elementfileforcode(c.kind, c.code);
        EXPECT_TRUE(datafile.is(c.file) && placemode == c.mode) << c.kind.text() << ' ' << c.code.text();
    }
}

// Nothing may be half written, and nothing is held open.
TEST(designfiles, channelOneIsTakenAndGivenBack) {
    session s;
    floorname = "1";
    elementkind = "girder";
    openinput(1, "datah\\st-post.txt", "test");
    EXPECT_EQ(failureof([] { recordelement("girders", 1, 2, 3, 41); })->kind, failurekind::filealreadyopen);
    EXPECT_EQ(session::file("designs/girders1.txt"), "(none)");
    closechannel(1);
    recordelement("girders", 1, 2, 3, 41);
    EXPECT_EQ(session::file("designs/girders1.txt"), "\"girder\",1,2,3,41,,,,,,64\r\n");
    EXPECT_EQ(failureof([] { openinput(1, "datah\\st-post.txt", "test"); }), std::nullopt);
}

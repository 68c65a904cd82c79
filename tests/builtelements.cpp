// Which positions of a plan are built, by what a design file says.
#include "building/builtelements.h"
#include "tests/session.h"

#include <chrono>

#include <sys/stat.h>

using namespace tessaly;

namespace {

// "postx0y16 beamx0y16*2 in girders1.txt": the built positions of a plan and how often, and the file.
std::string marksof(const window& plan) {
    const builtelements& built = builtelementsof(plan);
    std::string marks;
    for (const control* c : plan.controls)
        if (const int count = c->elementnumber ? built.countof(*c) : 0)
            marks += c->name + (count > 1 ? '*' + std::to_string(count) : "") + ' ';
    return marks + "in " + built.file;
}

}  // namespace

TEST(builtelements, areIdentifiedByKindGirderCodeAndFields7To9) {
    session s;
    s.start();
    const struct {
        const window& plan;
        const char *records, *marks;
    } rows[] = {
        {layoutgirder, "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n\"girder\",49,8,104,42,0,0,0,16,4,64\r\n",
         "postx0y16 beamx0y16 "},
        {layoutgirder, "\"girder\",91,104,8,43,0,270,16,16,1,64\r\n\"girder\",91,104,8,43,0,0,16,16,1,64\r\n",
         "vbeamx16y16 "},  // the second is turned away
        {layoutgirder, "girder,7,1,2,41.0,5,0,0,\"16\",0,0\n\"girder\",0,0,0,41,0,,0,1.6e1,0,0\n", "postx0y16*2 "},
        {layoutgirder, "\"girder\",1,8,8,\"1e999\",90,0,0,16,4,64\r\n\"girder\",1,8,8,41,90,0,0,\"x\",4,64\r\n", ""},
        {layoutgirder, "\"panel\",1,8,8,41,90,0,0,16,4,64\r\n\"Girder\",1,8,8,41,90,0,0,16,4,64\r\n", ""},
        {layoutgirder, "\n\"girder\",1,8,8,41,90,0,0,16,4,64\r\n", ""},  // out of step by a field
        {layoutgirder, "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n\"girder\",1,8,8,41,90,0,0,16", "postx0y16 "},
        {layoutpanels, "\"panel\",155,680,784,1,0,180,784,1168,4,64\r\n\"panel\",0,0,0,99,0,180,784,1168,4,64\r\n",
         "pan180x784y1168*2 "},
        {layoutpanels, "\"panel\",85,104,0,1,0,90,0,0,4,64\r\n", ""},
        {layoutroof, "\"roof\",35,872,1256,7,45,0,768,1152,4,64\r\n", "roofx768y1152 "},
    };
    for (const auto& row : rows) {
        const std::string name = &row.plan == &layoutgirder ? "girders1.txt"
                                 : &row.plan == &layoutroof ? "roofs1.txt"
                                                            : "panels1.txt";
        session::write("designs/" + name, row.records);
        EXPECT_EQ(marksof(row.plan), row.marks + ("in " + name)) << row.records;
    }
}

// The file is the one that a recorded click would go to, whatever the record mode; a file that cannot be read is none.
TEST(builtelements, followTheFileOfTheNextClick) {
    session s;
    s.start();
    EXPECT_EQ(marksof(layoutgirder), "in girders1.txt");
    s.click("postbeambtn");
    s.click("postx0y16");
    s.click("writefilebtn");
    s.click("postx0y16");
    EXPECT_EQ(marksof(layoutgirder), "postx0y16 in girders1.txt");
    const std::string before = worldtext(playedsurface.image);
    EXPECT_EQ(builtsuffix(*findcontrol("postx0y16"), builtelementsof(layoutgirder)), ", built once in girders1.txt");
    s.type("floor", "2x");
    EXPECT_EQ(marksof(layoutgirder), "in girders2.txt");
    s.type("floor", "11");  // no floor: that of the click before
    EXPECT_EQ(marksof(layoutgirder), "postx0y16 in girders1.txt");
    s.type("floor", "1");
    EXPECT_EQ(worldtext(playedsurface.image), before);
    std::filesystem::remove("designs/girders1.txt");
    EXPECT_EQ(marksof(layoutgirder), "in girders1.txt");
    mkfifo("designs/girders1.txt", 0600);
    EXPECT_EQ(marksof(layoutgirder), "in girders1.txt");
}

// Catches a count that a click would wait for.
TEST(builtelements, ofTenThousandRecordsAreCountedInNoTime) {
    session s;
    s.start();
    std::string records;
    for (int i = 0; i < 10000; ++i) records += "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";
    session::write("designs/girders1.txt", records);
    const auto from = std::chrono::steady_clock::now();
    EXPECT_EQ(marksof(layoutgirder), "postx0y16*10000 in girders1.txt");
    const auto taken = std::chrono::steady_clock::now() - from;
    RecordProperty("microseconds", std::to_string(taken / std::chrono::microseconds(1)));
    EXPECT_LT(taken, std::chrono::milliseconds(500));
}

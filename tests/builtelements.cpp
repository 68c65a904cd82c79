// Which positions of a plan are built, according to the design file.
#include "building/builtelements.h"
#include "tests/session.h"

#include <sys/stat.h>

using namespace tessaly;

namespace {

// Returns the built positions of a plan, how often each is built, and the file: "postx0y16 beamx0y16*2 in
// girders1.txt".
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
        const char *records, *marks;  // marks ends with the name of the file
    } rows[] = {
        {layoutgirder, "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n\"girder\",49,8,104,42,0,0,0,16,4,64\r\n",
         "postx0y16 beamx0y16 in girders1.txt"},
        {layoutgirder, "\"girder\",91,104,8,43,0,270,16,16,1,64\r\n\"girder\",91,104,8,43,0,0,16,16,1,64\r\n",
         "vbeamx16y16 in girders1.txt"},  // the second has another rotation
        {layoutgirder, "girder,7,1,2,41.0,5,0,0,\"16\",0,0\n\"girder\",0,0,0,41,0,,0,1.6e1,0,0\n",
         "postx0y16*2 in girders1.txt"},
        {layoutgirder, "\"girder\",1,8,8,\"1e999\",90,0,0,16,4,64\r\n\"girder\",1,8,8,41,90,0,0,\"x\",4,64\r\n",
         "in girders1.txt"},
        {layoutgirder, "\"panel\",1,8,8,41,90,0,0,16,4,64\r\n\"Girder\",1,8,8,41,90,0,0,16,4,64\r\n",
         "in girders1.txt"},
        {layoutgirder, "\n\"girder\",1,8,8,41,90,0,0,16,4,64\r\n", "in girders1.txt"},  // a blank line is a field
        {layoutgirder, "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n\"girder\",1,8,8,41,90,0,0,16",
         "postx0y16 in girders1.txt"},
        {layoutpanels, "\"panel\",155,680,784,1,0,180,784,1168,4,64\r\n\"panel\",0,0,0,99,0,180,784,1168,4,64\r\n",
         "pan180x784y1168*2 in panels1.txt"},
        {layoutpanels, "\"panel\",85,104,0,1,0,90,0,0,4,64\r\n", "in panels1.txt"},
        {layoutroof, "\"roof\",35,872,1256,7,45,0,768,1152,4,64\r\n", "roofx768y1152 in roofs1.txt"},
    };
    for (const auto& row : rows) {
        session::write("designs/" + std::string(row.marks).substr(std::string(row.marks).rfind(' ') + 1), row.records);
        EXPECT_EQ(marksof(row.plan), row.marks) << row.records;
    }
}

// The file is the one to which a click would be recorded, in any record mode. A file that cannot be read has no
// records.
TEST(builtelements, followTheFileOfTheNextClick) {
    session s;
    s.start();
    s.click("postbeambtn");
    s.click("postx0y16");
    s.click("writefilebtn");
    s.click("postx0y16");
    EXPECT_EQ(marksof(layoutgirder), "postx0y16 in girders1.txt");
    const std::string before = worldtext(playedsurface.image);
    playline("type floor \"2x\"");
    EXPECT_EQ(marksof(layoutgirder), "in girders2.txt");
    playline("type floor \"11\"");  // not a floor: the floor of the previous click
    EXPECT_EQ(marksof(layoutgirder), "postx0y16 in girders1.txt");
    playline("type floor \"1\"");
    EXPECT_EQ(worldtext(playedsurface.image), before);
    std::filesystem::remove("designs/girders1.txt");
    mkfifo("designs/girders1.txt", 0600);
    EXPECT_EQ(marksof(layoutgirder), "in girders1.txt");
}

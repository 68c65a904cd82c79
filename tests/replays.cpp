// Replays of design files with more records than a replay draws.
#include "tests/session.h"

using namespace tessaly;

// A post is one line here, so that the number of lines drawn is the number of records.
// NOT-BUGS: A long file is not drawn to its end
TEST(replays, haveALimitOfRecords) {
    const std::string post = "\"girder\",1,960,312,41,90,0,952,320,4,64\r\n";
    const struct {
        std::size_t records;
        const char *button, *list, *secondpick;
        std::size_t drawn;
    } rows[] = {
        {10001, "autowiresingle", "autofile", "", 10000},
        {10001, "autosolidsingle", "autofile5", "", 1000},
        {1001, "autowirebtn", "autofile1", "pick autofile2 \"girders1.txt\"", 2000},
        {1001, "autosolidbtn", "autofile3", "pick autofile4 \"roofs1.txt\"", 1000},  // 1000 in both files together
        {1001, "autosolidbtn", "autofile3", "pick autofile4 \"girders2.txt\"", 0},
    };
    session s;
    s.write("datah/st-post.txt", elementtext{.points = "1,0,0,0\n2,16,100,30\n", .lines = {"1,2\n"}});
    s.write("designs/girders2.txt", post);
    s.write("designs/roofs1.txt", "");
    s.start();
    for (const auto& row : rows) {
        s.write("designs/girders1.txt", repeated(row.records, post));
        s.takelines();
        const auto failed = failureof([&] {
            s.click(row.button);
            playline(std::string("pick ") + row.list + " \"girders1.txt\"");
            playline(row.secondpick);
        });
        EXPECT_EQ(failed ? kindname(failed->kind) : "", row.drawn ? "" : "subscript out of range") << row.button;
        EXPECT_EQ(s.takelines().size(), row.drawn) << row.button;
    }
}

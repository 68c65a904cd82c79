// Replays of design files with thousands of records, and of files that change without a new time or size.
#include "tests/session.h"

using namespace tessaly;

namespace {

constexpr const char* girders1 = "designs/girders1.txt";
const std::string post = "\"girder\",1,960,312,41,90,0,952,320,4,64\r\n";

// A post is one line here, so that the lines drawn are the records.
struct replays : testing::Test {
    session s{{{"datah/st-post.txt", elementtext{.points = "1,0,0,0\n2,16,100,30\n", .lines = {"1,2\n"}}},
               {"designs/girders2.txt", post},
               {"designs/roofs1.txt", ""}}};

    replays() {
        setview(1850, -1850, 550);
        showwindow(vistaplan);
        for (control* list : {&autofile, &autofile1, &autofile2, &autofile3, &autofile4, &autofile5})
            setfolder(*list, "designs\\");
    }
    static void posts(int n) {
        std::string records;
        for (int i = 0; i < n; ++i) records += post;
        session::write(girders1, records);
    }
    std::vector<drawnline> single(const char* button, const char* list) {
        s.click(button);
        s.pick(list, "girders1.txt");
        return s.takelines();
    }
    std::size_t both(const char* button, const char* first, const char* second, const std::string& file) {
        single(button, first);
        s.pick(second, file);
        return s.takelines().size();
    }
};

}  // namespace

// NOT-BUGS: A long file is not drawn to its end
TEST_F(replays, oneFileHasAThousandRecordsWhenSolidAndTenThousandAsWires) {
    posts(10001);
    EXPECT_EQ(single("autowiresingle", "autofile").size(), 10000);
    EXPECT_EQ(single("autosolidsingle", "autofile5").size(), 1000);
}

TEST_F(replays, twoFilesHaveAThousandRecordsEachAndTogetherWhenSolid) {
    posts(1001);
    EXPECT_EQ(both("autowirebtn", "autofile1", "autofile2", "girders1.txt"), 2000);
    EXPECT_EQ(both("autosolidbtn", "autofile3", "autofile4", "roofs1.txt"), 1000);
    EXPECT_EQ(failureof([&] { both("autosolidbtn", "autofile3", "autofile4", "girders2.txt"); })->kind,
              failurekind::subscript);
}

// The file has the same size, time and inode as before.
TEST_F(replays, aFileIsReadAgainEvenIfItLooksUnchanged) {
    posts(1);
    auto before = single("autowiresingle", "autofile");
    for (const std::string path : {girders1, "datah/st-post.txt"}) {
        const auto time = std::filesystem::last_write_time(path);
        session::write(path, replaced(session::file(path), path == girders1 ? "952" : "100", "140"));
        std::filesystem::last_write_time(path, time);
        auto after = single("autowiresingle", "autofile");
        EXPECT_NE(before, after) << path;
        before = after;
    }
}

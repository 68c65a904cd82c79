// A design survives the death of the program at any moment.
// TESSALY_KILLS sets how often the program is killed, 60 by default.
#include "building/layouts.h"
#include "tests/commandline.h"
#include "tests/session.h"

#include <algorithm>
#include <chrono>
#include <random>

#include <sys/wait.h>

using namespace tessaly;
namespace fs = std::filesystem;

namespace {

constexpr const char *girders = "designs/girders1.txt", *panels = "designs/panels2.txt";

// Plays script.play in a process that is killed after so many seconds; returns whether it ended before that. Its output
// goes to said.txt.
bool endsbefore(double seconds) {
    const std::string killed = "timeout --foreground -s KILL " + std::to_string(seconds) + " ";
    const int status = WEXITSTATUS(std::system((killed + playcommand + " script.play >said.txt").c_str()));
    EXPECT_TRUE(status == 0 || status == 124 || status == 128 + 9) << status;  // 124: it ended just then
    return status < 128;
}

}  // namespace

// Catches a record drawn but not on disk, half a record on disk, a record twice; a replay that writes, moves or empties
// the file that it replays.
TEST(interrupted, aDesignOutlivesTheProgramsDeathAtAnyMoment) {
    const session s;
    std::string script = "click startprogrambtn\nclick wiresolidbtn\nclick postbeambtn\n", all, walls;
    int clicks = 0;
    for (const buttonposition& p : allbuttonpositions()) {
        if (p.family->layout != &layoutgirder) continue;
        script += "click " + positionname(p) + "\nsay " + std::to_string(++clicks) + '\n';
        if (clicks % 50 == 0)
            script += "click autowiresingle\npick autofile \"girders1.txt\"\n"
                      "click autosolidsingle\npick autofile5 \"panels2.txt\"\n"
                      "click autowirebtn\npick autofile1 \"girders1.txt\"\npick autofile2 \"panels2.txt\"\n"
                      "click autosolidbtn\npick autofile3 \"girders1.txt\"\npick autofile4 \"panels2.txt\"\n";
    }
    for (int i = 0; i < 20; ++i) walls += "\"panel\",1,0,104,1,0,270,0,208,2,64\r\n";
    session::write("script.play", script);
    session::write(panels, walls);
    const auto written = fs::last_write_time(panels);
    const auto endsandpreservesthedesign = [&](double seconds) {
        SCOPED_TRACE("killed after " + std::to_string(seconds) + " s");
        for (const char* left : {girders, "nonuser/temp.txt", "nonuser/temp2.txt"}) fs::remove(left);
        const bool ended = endsbefore(seconds);
        const std::string design = fs::exists(girders) ? session::file(girders) : "", said = session::file("said.txt");
        if (all.empty()) all = design;  // the first play is not killed
        const auto records = std::count(design.begin(), design.end(), '\n');
        const auto drawn = std::count(said.begin(), said.end(), '\n');
        EXPECT_TRUE(all.starts_with(design)) << design;
        EXPECT_TRUE(design.empty() || design.ends_with("\r\n")) << design;
        EXPECT_TRUE(records == drawn || records == drawn + 1) << drawn << " drawn: " << design;
        EXPECT_EQ(session::file(panels), walls);
        EXPECT_TRUE(fs::last_write_time(panels) == written) << "a replay has written its design file";
        return ended;
    };

    const auto begin = std::chrono::steady_clock::now();
    ASSERT_TRUE(endsandpreservesthedesign(60));
    const std::chrono::duration<double> whole = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), clicks);
    const char* const wanted = std::getenv("TESSALY_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 60;
    const auto seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> moment(0, whole.count());
    int died = 0;
    for (int k = 0; k < kills && !HasFailure(); ++k) died += !endsandpreservesthedesign(moment(random));
    EXPECT_GT(died, kills / 10) << "the plays were to be killed before their end";
}

// A design survives the death of the program at any moment.
#include "building/layouts.h"
#include "tests/commandline.h"
#include "tests/random.h"
#include "tests/session.h"

#include <algorithm>
#include <chrono>

using namespace tessaly;
namespace fs = std::filesystem;

// Catches an element that is drawn but not recorded, half a record, a record written twice, and a replay that changes
// the file that it replays.
TEST(interrupted, aDesignOutlivesTheProgramsDeathAtAnyMoment) {
    const session s;
    constexpr const char *girders = "designs/girders1.txt", *panels = "designs/panels2.txt";
    std::string script = "click startprogrambtn\nclick wiresolidbtn\nclick postbeambtn\n", all;
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
    session::write("script.play", script);
    session::write(panels, repeated(20, "\"panel\",1,0,104,1,0,270,0,208,2,64\r\n"));
    const auto written = fs::last_write_time(panels);
    constexpr int kills = 60;
    const unsigned seed = std::random_device{}();
    randomnumbers random(seed);
    double complete = 60;  // seconds that a play takes; the first one is not killed
    int killed = 0;
    for (int k = 0; k <= kills && !HasFailure(); ++k) {
        const std::string seconds = std::to_string(k == 0 ? complete : random.real(0, complete));
        SCOPED_TRACE("seed " + std::to_string(seed) + ", killed after " + seconds + " s");
        for (const char* left : {girders, "nonuser/temp.txt", "nonuser/temp2.txt"}) fs::remove(left);
        const auto begin = std::chrono::steady_clock::now();
        const int status =
            run("timeout --foreground -s KILL " + seconds + ' ' + playcommand + " script.play >output.txt");
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
        const std::string design = fs::exists(girders) ? session::file(girders) : "";
        if (k == 0) all = design;
        if (k == 0) complete = taken.count();
        killed += status == 128 + 9;
        EXPECT_TRUE(status == 0 || (k > 0 && status >= 124)) << status;  // 124: it ended at that moment
        const std::string output = session::file("output.txt");
        const auto records = std::count(design.begin(), design.end(), '\n');
        const auto drawn = std::count(output.begin(), output.end(), '\n');
        EXPECT_TRUE(all.starts_with(design)) << design;
        EXPECT_TRUE(design.empty() || design.ends_with("\r\n")) << design;
        EXPECT_TRUE(records == drawn || records == drawn + 1) << drawn << " drawn: " << design;
        EXPECT_TRUE(fs::last_write_time(panels) == written) << "a replay wrote to its design file";
    }
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), clicks);
    EXPECT_GT(killed, kills / 10) << "the plays were to be killed before their end";
}

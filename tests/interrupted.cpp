// A design outlives what happens to the program: its death at any moment, and disks that take no more.
// TESSALY_KILLS sets how often the program is killed, 60 by default.
#include "building/layouts.h"
#include "tests/session.h"

#include <algorithm>
#include <chrono>
#include <random>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessaly;
namespace fs = std::filesystem;

namespace {

constexpr const char *girders = "designs/girders1.txt", *panels = "designs/panels2.txt";

// Plays script.play in a process of its own, which is killed after so many seconds; whether it lived to its end. What
// it says goes to said.txt.
bool livesthrough(double seconds) {
    const std::string killed = "timeout --foreground -s KILL " + std::to_string(seconds) + " ";
    const int status = WEXITSTATUS(std::system((killed + TESSALY_PLAY " script.play >said.txt").c_str()));
    EXPECT_TRUE(status == 0 || status == 124 || status == 128 + 9) << status;  // 124: it ended just then
    return status < 128;
}

// From here on no file may grow beyond this many bytes.
void limitfiles(rlim_t bytes) {
    rlimit limit;
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

// A click that cannot be recorded says so, draws nothing and leaves the design as it was.
void expectclickfails(session& s) {
    const std::string before = session::file(girders);
    s.takelines();
    expectfailure(failureof([&] { s.click("postx0y16"); }), failurekind::fileaccess, "designs\\girders1.txt");
    EXPECT_EQ(session::file(girders), before);
    EXPECT_TRUE(s.lines().empty());
}

}  // namespace

// A record drawn but not on disk, a record on disk by half, a record twice; a replay that writes, moves or empties the
// file that it replays.
TEST(interrupted, aDesignOutlivesTheProgramsDeathAtAnyMoment) {
    const session s;
    std::string script = "click startprogrambtn\nclick wiresolidbtn\nclick postbeambtn\n", all, walls;
    int clicks = 0;
    for (const buttonposition& p : allbuttonpositions()) {
        if (p.of->on != &layoutgirder) continue;
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
    const auto livesandkeepsthedesign = [&](double seconds) {
        for (const char* left : {girders, "nonuser/temp.txt", "nonuser/temp2.txt"}) fs::remove(left);
        const bool lives = livesthrough(seconds);
        const std::string design = fs::exists(girders) ? session::file(girders) : "", said = session::file("said.txt");
        if (all.empty()) all = design;  // of the play that came to its end
        const auto records = std::count(design.begin(), design.end(), '\n');
        const auto drawn = std::count(said.begin(), said.end(), '\n');
        EXPECT_TRUE(all.starts_with(design) && (design.empty() || design.ends_with("\r\n"))) << design;
        EXPECT_TRUE(records == drawn || records == drawn + 1) << drawn << " drawn: " << design;
        EXPECT_TRUE(session::file(panels) == walls && fs::last_write_time(panels) == written);
        return lives;
    };

    const auto begin = std::chrono::steady_clock::now();
    ASSERT_TRUE(livesandkeepsthedesign(60));
    const std::chrono::duration<double> whole = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), clicks);
    const char* const wanted = std::getenv("TESSALY_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 60;
    std::mt19937 random(std::random_device{}());
    std::uniform_real_distribution<double> moment(0, whole.count());
    int died = 0;
    for (int k = 0; k < kills && !HasFailure(); ++k) died += !livesandkeepsthedesign(moment(random));
    EXPECT_GT(died, kills / 10) << "the plays were to be killed before their end";
}

// Half a record left by a disk that filled up within it, or an empty file where there was none; a folder or a file that
// may not be written. Each time the next click finds the file free again.
TEST(interrupted, whatCannotBeWrittenStaysAsItWas) {
    session s;
    s.start();
    s.click("postbeambtn");
    const bool root = ::geteuid() == 0;
    fs::permissions(".", fs::perms(0755));
    for (const bool recorded : {false, true}) {
        limitfiles((recorded ? fs::file_size(girders) : 0) + 10);
        expectclickfails(s);
        limitfiles(RLIM_INFINITY);
        const char* const guarded = recorded ? girders : "designs";
        const fs::perms before = fs::status(guarded).permissions();
        fs::permissions(guarded, fs::perms(0555));
        if (root && ::seteuid(65534) != 0) GTEST_SKIP() << "cannot act as another user";  // root may write everywhere
        expectclickfails(s);
        EXPECT_TRUE(!root || ::seteuid(0) == 0);
        fs::permissions(guarded, before);
        const std::string design = recorded ? session::file(girders) : "";
        s.click("postx0y16");
        EXPECT_EQ(session::file(girders), design + "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n");
    }
}

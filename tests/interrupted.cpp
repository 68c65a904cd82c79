// A design outlives what happens to the program: its death at any moment, and disks that take no more.
// TESSALY_KILLS sets how often the program is killed, 60 by default.
#include "building/layouts.h"
#include "tests/session.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessaly;
namespace fs = std::filesystem;

namespace {

constexpr const char* girders = "designs/girders1.txt";
const std::string post = "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";

// Plays script.play in a process of its own; what it says goes to said.txt.
pid_t startplayer() {
    const pid_t id = ::fork();
    if (id != 0) return id;
    ::dup2(::open("said.txt", O_WRONLY | O_CREAT | O_TRUNC, 0666), 1);
    ::execl(TESSALY_PLAY, "play", "script.play", nullptr);
    ::_exit(127);
}

int statusof(pid_t player) {
    int status = 0;
    ::waitpid(player, &status, 0);
    return status;
}

// Plays script to its end, then again and again up to a random moment of that time. leftovers: files that go before
// each play; check: after each.
template <class procedure>
void killatrandom(const std::string& script, std::initializer_list<const char*> leftovers, procedure check) {
    using clock = std::chrono::steady_clock;
    session::write("script.play", script);
    const auto begin = [&] {
        for (const char* file : leftovers) fs::remove(file);
    };
    begin();
    const auto start = clock::now();
    ASSERT_EQ(statusof(startplayer()), 0);
    const std::chrono::duration<double> whole = clock::now() - start;
    check();
    const char* const wanted = std::getenv("TESSALY_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 60;
    std::mt19937 random(std::random_device{}());
    std::uniform_real_distribution<double> moment(0, whole.count());
    int died = 0;
    for (int k = 0; k < kills && !::testing::Test::HasFailure(); ++k) {
        begin();
        const pid_t player = startplayer();
        std::this_thread::sleep_for(std::chrono::duration<double>(moment(random)));
        ::kill(player, SIGKILL);
        died += WIFSIGNALED(statusof(player));
        check();
    }
    EXPECT_GT(died, kills / 10) << "the plays were to be killed before their end";
}

void appendpost() {
    openappend(1, "designs\\girders1.txt", "design file");
    writetext(1, post);
    closechannel(1);
}

void expectappendfails() {
    const auto failed = failureof(appendpost);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->kind, failurekind::fileaccess);
    EXPECT_NE(failed->report().find("designs\\girders1.txt"), std::string::npos) << failed->report();
}

// No file may grow beyond this many bytes for as long as it lives.
struct sizelimit {
    rlimit before;
    explicit sizelimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limited{bytes, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~sizelimit() { ::setrlimit(RLIMIT_FSIZE, &before); }
};

}  // namespace

// A record drawn but not on disk, a record on disk by half, a record twice.
TEST(interrupted, clicksKeepEveryRecordDrawnAndNoHalfRecord) {
    const session s;
    std::string script = "click startprogrambtn\nclick wiresolidbtn\nclick postbeambtn\n", all;
    int clicks = 0;
    for (const position& p : allpositions())
        if (p.of->on == &layoutgirder)
            script += "click " + positionname(p) + "\nsay " + std::to_string(++clicks) + '\n';
    const auto check = [&] {
        const std::string design = fs::exists(girders) ? session::file(girders) : "", said = session::file("said.txt");
        if (all.empty()) all = design;  // of the play that came to its end
        const auto records = std::count(design.begin(), design.end(), '\n');
        const auto drawn = std::count(said.begin(), said.end(), '\n');
        EXPECT_TRUE(all.starts_with(design) && (design.empty() || design.ends_with("\r\n"))) << design;
        EXPECT_TRUE(records == drawn || records == drawn + 1) << drawn << " drawn: " << design;
    };
    killatrandom(script, {girders, "said.txt"}, check);
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), clicks);
}

// A replay that writes, moves or empties the file that it replays.
TEST(interrupted, replaysNeverTouchADesignFile) {
    const session s;
    std::string records, panels;
    for (int i = 0; i < 20; ++i) records += post;
    for (int i = 0; i < 20; ++i) panels += "\"panel\",1,0,104,1,0,270,0,208,2,64\r\n";
    session::write(girders, records);
    session::write("designs/panels2.txt", panels);
    const auto written = fs::last_write_time(girders);
    const std::string script = "click startprogrambtn\n"
                               "click autowiresingle\npick autofile \"girders1.txt\"\n"
                               "click autosolidsingle\npick autofile5 \"panels2.txt\"\n"
                               "click autowirebtn\npick autofile1 \"girders1.txt\"\npick autofile2 \"panels2.txt\"\n"
                               "click autosolidbtn\npick autofile3 \"girders1.txt\"\npick autofile4 \"panels2.txt\"\n";
    const auto check = [&] {
        EXPECT_TRUE(session::file(girders) == records && session::file("designs/panels2.txt") == panels);
        EXPECT_EQ(fs::last_write_time(girders), written);
    };
    killatrandom(script, {"nonuser/temp.txt", "nonuser/temp2.txt"}, check);
}

// Half a record left by a disk that filled up within it, or an empty file where there was none.
TEST(interrupted, aFullDiskLeavesTheDesignAsItWas) {
    const session s;
    {
        const sizelimit full(post.size() / 2);
        expectappendfails();
        EXPECT_FALSE(fs::exists(girders));
    }
    session::write(girders, post);
    {
        const sizelimit full(post.size() + 10);
        expectappendfails();
    }
    EXPECT_EQ(session::file(girders), post);
    appendpost();  // the channel is free again
    EXPECT_EQ(session::file(girders), post + post);
}

// A folder or a file that may not be written.
TEST(interrupted, whatMayNotBeWrittenStaysAsItWas) {
    const session s;
    const bool root = ::geteuid() == 0;
    const auto fails = [root] {  // as another user: the superuser may write everywhere
        if (root && ::seteuid(65534) != 0) GTEST_SKIP() << "cannot act as another user";
        expectappendfails();
        EXPECT_TRUE(!root || ::seteuid(0) == 0);
    };
    fs::permissions(".", fs::perms(0755));
    fs::permissions("designs", fs::perms(0555));
    fails();
    EXPECT_FALSE(fs::exists(girders));
    fs::permissions("designs", fs::perms(0777));
    session::write(girders, post);
    fs::permissions(girders, fs::perms(0444));
    fails();
    EXPECT_EQ(session::file(girders), post);
}

// The program as a whole: a click whose record cannot be written is reported and ends it, and draws nothing.
TEST(interrupted, aClickThatCannotBeRecordedEndsTheProgram) {
    const session s;
    session::write(girders, post);
    session::write("script.play", "click startprogrambtn\nclick postbeambtn\nclick postx0y16\nsay drawn\n");
    const sizelimit full(post.size() + 10);
    const int status = statusof(startplayer());
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << status;
    EXPECT_EQ(session::file(girders), post);
    EXPECT_EQ(session::file("said.txt"), "");
}

// Every system call of tests/preloaded/failingcalls.play on a file of the working folder fails once with each of its
// errors.
#include "tests/commandline.h"
#include "tests/session.h"

#include <cerrno>
#include <set>

using namespace tessaly;

using fileset = std::set<std::pair<std::string, std::string>>;  // path and bytes, "(none)" if it was deleted

// Catches a failure that is not noticed, also of a close after writing, a lost or torn line, an empty file, a destroyed
// or incomplete capture, and a temporary file that is left behind. Each file must be as it was before the script or as
// it is after a play without failures.
TEST(injectedfailures, areReportedAndDestroyNothing) {
    const std::string record = "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";
    const fileset before{{"designs/girders1.txt", record},
                         {"designs/roofs1.txt", record},
                         {"bmps/view.bmp", "a capture"},
                         {"bmps/gone.bmp", "another one"}};
    fileset complete;
    int injected = 0;  // the first play has no failure
    for (;; ++injected) {
        const workingfolder folder(TESSALY_SOURCE_DIR);
        for (const auto& [path, bytes] : before) session::write(path, bytes);
        std::filesystem::copy_file(TESSALY_FAILINGCALLS, "failingcalls.so");  // LD_PRELOAD allows no blank in a path
        const int status = run("ASAN_OPTIONS=verify_asan_link_order=0 LD_PRELOAD=./failingcalls.so INJECTED=" +
                               std::to_string(injected) + ' ' + playcommand + " >output.txt 2>&1 " +
                               shellquoted(TESSALY_SOURCE_DIR "/tests/preloaded/failingcalls.play"));
        const std::string output = session::file("output.txt");
        const auto outputhas = [&](const std::string& text) { return output.find(text) != std::string::npos; };
        if (injected > 0 && !outputhas("injected")) break;
        SCOPED_TRACE(output);
        fileset after;
        for (const auto& [path, bytes] : before) after.insert({path, session::file(path)});
        for (const char* written : {"designs", "bmps"})
            for (const auto& file : std::filesystem::directory_iterator(written))
                after.insert({file.path(), session::file(file.path())});
        if (injected == 0) complete = after;
        for (const auto& file : after) {
            const std::string name = file.first.substr(file.first.find('/') + 1);
            const bool unchanged = before.contains(file);
            EXPECT_TRUE(unchanged || complete.contains(file)) << name;
            EXPECT_TRUE(unchanged || !outputhas(name + " (could not be written, it is unchanged)")) << name;
        }
        const bool passedover = after == complete || outputhas("bmps/gone.bmp");  // which then cannot be deleted
        EXPECT_TRUE(status == 0 ? passedover : status == 1 && outputhas("failure ")) << status;
        EXPECT_TRUE(status == 1 || !outputhas("close written") || outputhas(": " + std::to_string(EINTR) + "\n"));
    }
    EXPECT_GT(injected, 300);
}

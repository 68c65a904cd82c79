// Sessions: each script of tests/sessions is played in a temporary working folder with the shipped data and the files
// of the folder with its name. What each step changed is compared with the expected record. tools/make-sessions.sh
// writes the records again; review each line of the difference like a change of the program.
#include "picturefiles/picturefile.h"
#include "player/commands.h"
#include "tests/commandline.h"
#include "tests/session.h"

#include <algorithm>
#include <set>

using namespace tessaly;

namespace {

namespace fs = std::filesystem;
const fs::path sessions = TESSALY_SOURCE_DIR "/tests/sessions";

class playedsession : public testing::Test {
  public:
    explicit playedsession(std::string itsname) : name(std::move(itsname)) {}

    void TestBody() override {
        const std::string script = sessions / (name + ".play"), expected = sessions / (name + ".txt");
        session s;
        const fs::path files = sessions / name;
        if (fs::exists(files)) fs::copy(files, ".", fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        usepicturefiles();
        for (loggedsurface* surface : {&playedsurface, &playedstrip}) surface->image.clear();
        viewportsurface = &playedsurface;
        progresssurface = &playedstrip;
        std::ifstream lines(script);
        try {
            for (std::string line; !programended && std::getline(lines, line);) playline(line);
        } catch (const failure&) {  // the record shows it
        }
        EXPECT_EQ(run("diff -U2 " + shellquoted(expected) + " record.txt"), 0);
    }

  private:
    std::string name;
};

[[maybe_unused]] const bool registered = [] {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(sessions)) names.insert(entry.path().stem());
    for (const std::string& name : names) {
        std::string testname = name;  // in a test filter '-' excludes tests
        std::replace(testname.begin(), testname.end(), '-', '_');
        testing::RegisterTest("sessions", testname.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                              [name] { return new playedsession(name); });
    }
    return true;
}();

}  // namespace

// Whole sessions: each script of tests/sessions is played in a scratch folder, over the shipped data and the files of
// the folder of its name, and what each step changed is compared with the expected record beside it.
// tools/make-sessions.sh writes the records again; each line of the difference is reviewed like a change of the
// program.
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
        ASSERT_TRUE(fs::exists(script)) << "a record or a folder without a script";
        ASSERT_TRUE(fs::exists(expected)) << "no record: tools/make-sessions.sh " << name;
        session s;
        const fs::path files = sessions / name;
        if (fs::exists(files)) fs::copy(files, ".", fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        play(script);
        EXPECT_EQ(std::system(("diff -U2 " + shellquoted(expected) + " record.txt").c_str()), 0);
    }

  private:
    static void play(const std::string& path) {
        usepicturefiles();
        for (loggedsurface* drawnon : {&playedsurface, &playedstrip}) drawnon->image.clear();
        viewportsurface = &playedsurface;
        progresssurface = &playedstrip;
        std::ifstream script(path);
        try {
            for (std::string line; !programended && std::getline(script, line);) playline(line);
        } catch (const failure&) {  // it is in the record
        }
    }

    std::string name;
};

[[maybe_unused]] const bool registered = [] {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(sessions)) names.insert(entry.path().stem());
    for (const std::string& name : names) {
        std::string testname = name;  // in a filter of tests '-' means "but not"
        std::replace(testname.begin(), testname.end(), '-', '_');
        testing::RegisterTest("sessions", testname.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                              [name] { return new playedsession(name); });
    }
    return true;
}();

}  // namespace

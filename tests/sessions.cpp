// Whole sessions: each script of tests/sessions is played in a scratch folder, over the shipped data and the files of
// the folder of its name, and what each step changed is held against the record that is kept beside it.
// tools/make-sessions.sh writes the records anew; a change of theirs is to be read like a change of the program.
#include "picturefiles/picturefile.h"
#include "player/commands.h"
#include "tests/session.h"

#include <algorithm>

using namespace tessaly;

namespace {

namespace fs = std::filesystem;
const fs::path kept = TESSALY_SOURCE_DIR "/tests/sessions";

class playedsession : public testing::Test {
  public:
    explicit playedsession(std::string its) : name(std::move(its)) {}

    void TestBody() override {
        session s;
        if (fs::exists(kept / name)) {
            fs::copy(kept / name, ".", fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        }
        usepicturefiles();
        for (loggedsurface* drawnon : {&playedsurface, &playedstrip}) drawnon->image.clear();
        viewportsurface = &playedsurface;
        progresssurface = &playedstrip;
        std::ifstream script(kept / (name + ".play"));
        try {
            for (std::string line; !programended && std::getline(script, line);) obeyline(line);
        } catch (const failure&) {  // the record tells it
        }
        EXPECT_EQ(std::system(("diff -U2 " + (kept / (name + ".txt")).string() + " record.txt").c_str()), 0);
    }

  private:
    std::string name;
};

[[maybe_unused]] const bool registered = [] {
    for (const auto& entry : fs::directory_iterator(kept)) {
        const std::string name = entry.path().stem();
        std::string called = name;  // a filter of tests takes '-' for "but not"
        std::replace(called.begin(), called.end(), '-', '_');
        if (entry.path().extension() == ".play")
            testing::RegisterTest("sessions", called.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                                  [name] { return new playedsession(name); });
    }
    return true;
}();

}  // namespace

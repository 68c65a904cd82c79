// Committed files equal those that their generators write now: panels, palette, maps, samples, pictures.

#include "tests/commandline.h"
#include "tools/workingfolder.h"

#include <gtest/gtest.h>

#include <QImage>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using tessaly::playcommand, tessaly::shellquoted;

const fs::path source = TESSALY_SOURCE_DIR;
const fs::path pictures = source / "windows/qt/pictures", documents = source / "docs/pictures";

std::string bytesof(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator(in), {}};
}

// Letters and blended pixels differ with the version of the toolkit and of the font library: one pixel in twenty-five
// differs clearly if only the hinting of letters differs.
bool looksalike(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return false;
    int clearlydifferent = 0;
    const auto apart = [](int one, int other) { return std::abs(one - other) > 64; };
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            clearlydifferent += apart(qRed(p), qRed(q)) || apart(qGreen(p), qGreen(q)) || apart(qBlue(p), qBlue(q));
        }
    return clearlydifferent < a.width() * a.height() / 20;
}

std::string descriptionof(const QImage& picture) { return picture.text("Shows").toStdString(); }

// A picture with a description of what it shows is compared by the description, and only roughly by its pixels. All
// others come from the engine's arithmetic alone and are the same to the pixel.
void expectsame(const fs::path& made, const fs::path& committed) {
    SCOPED_TRACE(committed.string() + " differs from what is made now: run its generator again");
    if (made.extension() != ".png") {
        EXPECT_TRUE(bytesof(made) == bytesof(committed));
        return;
    }
    const QImage now(made.c_str()), before(committed.c_str());
    ASSERT_FALSE(now.isNull());
    EXPECT_EQ(descriptionof(now), descriptionof(before));
    EXPECT_TRUE(descriptionof(now).empty() ? now == before : looksalike(now, before));
}

// Runs a generator in a working folder and compares each file that it writes with the committed one in these folders.
void expectcommitted(const fs::path& generator, const std::string& arguments, const std::vector<fs::path>& folders,
                     int files) {
    const tessaly::workingfolder scratch(source);
    fs::create_directory("made");
    std::string command = "timeout 60 " + shellquoted(generator) + ' ' + arguments;  // a failure's window would wait
    for (std::size_t n = 0; n < folders.size(); ++n) command += " made";
    EXPECT_EQ(std::system(command.c_str()), 0);
    for (const auto& file : fs::directory_iterator("made")) {
        const fs::path name = file.path().filename();
        expectsame(file.path(), (fs::exists(folders.front() / name) ? folders.front() : folders.back()) / name);
        --files;
    }
    EXPECT_EQ(files, 0) << command;
}

const fs::path programs = fs::path(TESSALY_PLAY).parent_path(), scripts = source / "tools";

// Catches a panel changed by hand, or in its description with the files left as they were: the four ends of a type and
// the types among themselves would no longer agree.
TEST(generators, panelsAreCommitted) { expectcommitted(programs / "makepanels", "", {source / "datah"}, 32); }

// Catches a colour changed in the list alone or in the palette alone.
TEST(generators, paletteIsCommitted) {
    expectcommitted(programs / "makepalette", "pals/tessaly.txt", {source / "pals"}, 1);
}

// Catches a layout changed with the maps of el-numbers left as they were.
TEST(generators, mapsAreCommitted) { expectcommitted(programs / "makemaps", "", {source / "el-numbers"}, 3); }

// Catches an element changed with its button's picture left as it was.
TEST(generators, buttonPicturesAreCommitted) { expectcommitted(programs / "makebuttons", ".", {pictures}, 26); }

// Catches a control moved, added or renamed, or an element changed, with the pictures of it left as they were.
TEST(generators, windowPicturesAreCommitted) {
    expectcommitted(programs / "makewindowpictures", shellquoted(source), {pictures, documents}, 12);
}

// Catches a layout, a record or the script changed with the sample buildings left as they were.
TEST(generators, samplesAreCommitted) {
    expectcommitted(scripts / "make-samples.sh", playcommand, {source / "samples"}, 27);
}

// Catches a change of buttons, data, colours or drawing that the guide does not follow; a replay that loses, moves or
// adds an element; a capture that does not bring its picture back.
// NOT-BUGS: The last click covers elements that are nearer
// NOT-BUGS: Posts show in front of the panels at outside corners
TEST(generators, buildingPicturesAreCommitted) {
    expectcommitted(scripts / "make-pictures.sh", playcommand, {documents}, 7);
}

}  // namespace

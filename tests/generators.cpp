// What is made and committed is what its maker makes: panels, palette, maps, samples, pictures.

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

const fs::path source = TESSALY_SOURCE_DIR;
const fs::path pictures = source / "windows/qt/pictures", documents = source / "docs/pictures";

std::string bytesof(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator(in), {}};
}

// Where the toolkit draws letters and blends, pixels differ with its version and the font library: one in twenty-five
// clearly where letters are only hinted another way.
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

// A picture that tells in words what it shows is compared by them to the letter, and only roughly by its pixels. All
// others come from the engine's arithmetic alone and are the same to the pixel.
void expectsame(const fs::path& made, const fs::path& kept) {
    SCOPED_TRACE(kept.string() + " is not what is made now: run its maker again");
    if (made.extension() != ".png") {
        EXPECT_TRUE(bytesof(made) == bytesof(kept));
        return;
    }
    const QImage now(made.c_str()), before(kept.c_str());
    ASSERT_FALSE(now.isNull());
    EXPECT_EQ(descriptionof(now), descriptionof(before));
    EXPECT_TRUE(descriptionof(now).empty() ? now == before : looksalike(now, before));
}

// Runs a maker in a working folder and compares each file that it writes with the one kept in one of these folders.
void expectkept(std::string maker, const std::vector<fs::path>& kept, int files) {
    const tessaly::workingfolder scratch(source);
    fs::create_directory("made");
    for (std::size_t n = 0; n < kept.size(); ++n) maker += " made";
    EXPECT_EQ(std::system(("timeout 60 " + maker).c_str()), 0);  // a window that tells a failure waits
    for (const auto& file : fs::directory_iterator("made")) {
        const fs::path name = file.path().filename();
        expectsame(file.path(), (fs::exists(kept.front() / name) ? kept.front() : kept.back()) / name);
        --files;
    }
    EXPECT_EQ(files, 0) << maker;
}

const std::string makers = fs::path(TESSALY_PLAY).parent_path() / "make", scripts = source / "tools/make-";

// Catches a panel changed by hand, or in its description with the files left as they were: the four ends of a type and
// the types among themselves would no longer agree.
TEST(makers, panelsarekept) { expectkept(makers + "panels", {source / "datah"}, 32); }

// Catches a colour changed in the list alone or in the palette alone.
TEST(makers, paletteiskept) { expectkept(makers + "palette pals/tessaly.txt", {source / "pals"}, 1); }

// Catches a layout changed with the maps of el-numbers left as they were.
TEST(makers, mapsarekept) { expectkept(makers + "maps", {source / "el-numbers"}, 3); }

// Catches an element changed with its button's picture left as it was.
TEST(makers, buttonpicturesarekept) { expectkept(makers + "buttons .", {pictures}, 26); }

// Catches a control moved, added or renamed, or an element changed, with the pictures of it left as they were.
TEST(makers, windowpicturesarekept) {
    expectkept(makers + "windowpictures " + source.string(), {pictures, documents}, 12);
}

// Catches a layout, a record or the script changed with the sample buildings left as they were.
TEST(makers, samplesarekept) { expectkept(scripts + "samples.sh " TESSALY_PLAY, {source / "samples"}, 27); }

// Catches a change of buttons, data, colours or drawing that the guide does not follow; a replay that loses, moves or
// adds an element; a capture that does not bring its picture back.
TEST(makers, buildingpicturesarekept) { expectkept(scripts + "pictures.sh " TESSALY_PLAY, {documents}, 7); }

}  // namespace

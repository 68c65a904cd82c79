// The committed pictures are what their makers draw: the element maps and the pictures on the buttons.

#include "tools/workingfolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path source = TESSALY_SOURCE_DIR;

// Runs a maker of build/tools into an empty folder and compares each PNG that it writes with the one kept.
void expectkept(const std::string& maker, const std::string& arguments, const fs::path& kept, int count) {
    const tessaly::workingfolder folder(source);
    const fs::path made = fs::current_path() / "made";
    fs::create_directory(made);
    const fs::path program = fs::path(TESSALY_PLAY).parent_path() / maker;
    ASSERT_EQ(std::system((program.string() + arguments + " " + made.string()).c_str()), 0);
    const QDir pictures(QString::fromStdString(made.string()));
    const QStringList names = pictures.entryList({"*.png"}, QDir::Files);
    EXPECT_EQ(names.size(), count);
    for (const QString& name : names)
        EXPECT_EQ(QImage(pictures.filePath(name)), QImage(QString::fromStdString((kept / name.toStdString()).string())))
            << name.toStdString() << " is not what " << maker << " draws: run it again";
}

// Catches a layout changed with the maps of el-numbers left as they were.
TEST(makers, mapsarekept) { expectkept("makemaps", "", source / "el-numbers", 3); }

// Catches an element changed with its button's picture left as it was.
TEST(makers, buttonpicturesarekept) { expectkept("makebuttons", " .", source / "windows/qt/pictures", 26); }

// How many pixels of two pictures differ clearly. Letters may come out a shade different with another font library.
int clearlydifferent(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return a.width() * a.height();
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            const int apart =
                std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
            count += apart > 150;
        }
    return count;
}

// Catches a control moved, added or renamed on the main window with the help's pictures of it left as they were.
TEST(makers, windowpicturesarekept) {
    const tessaly::workingfolder folder;
    const fs::path made = fs::current_path();
    fs::create_directories(made / "help");
    fs::create_directories(made / "documents");
    const fs::path program = fs::path(TESSALY_PLAY).parent_path() / "makewindowpictures";
    const std::string line =
        program.string() + " " + source.string() + " " + (made / "help").string() + " " + (made / "documents").string();
    ASSERT_EQ(std::system(line.c_str()), 0);
    int pictures = 0;
    for (const auto& [shots, kept] : {std::pair{made / "help", source / "windows/qt/pictures"},
                                      std::pair{made / "documents", source / "docs" / "pictures"}})
        for (const auto& file : fs::directory_iterator(shots)) {
            ++pictures;
            const QImage now(QString::fromStdString(file.path().string()));
            const QImage before(QString::fromStdString((kept / file.path().filename()).string()));
            EXPECT_LT(clearlydifferent(now, before), now.width() * now.height() / 500) << file.path().filename();
        }
    EXPECT_EQ(pictures, 11);
}

}  // namespace

// The committed element maps are what their maker draws from the layout tables.

#include <gtest/gtest.h>

#include <QImage>

#include <cstdlib>
#include <filesystem>
#include <string>

#include <unistd.h>

namespace {

// Catches a layout or the maker changed with the maps of el-numbers left as they were.
TEST(maps, areasthemakerdrawsthem) {
    const auto scratch = std::filesystem::temp_directory_path() / ("tessaly-maps-" + std::to_string(::getpid()));
    std::filesystem::create_directories(scratch);
    const auto maker = std::filesystem::path(TESSALY_PLAY).parent_path() / "makemaps";
    ASSERT_EQ(std::system((maker.string() + " " + scratch.string() + " 2>/dev/null").c_str()), 0);
    for (const char* name : {"girders.png", "panels.png", "roofs.png"}) {
        const QImage made(QString::fromStdString((scratch / name).string()));
        const QImage kept(QString::fromUtf8(TESSALY_SOURCE_DIR "/el-numbers/") + name);
        ASSERT_FALSE(made.isNull()) << name;
        EXPECT_EQ(made, kept) << name << ": run makemaps el-numbers";
    }
    std::filesystem::remove_all(scratch);
}

}  // namespace

// The shipped data: the committed files are those that the makers make.
#include "tools/shipped.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

using namespace tessaly;

namespace {

std::string committed(const std::string& path) {
    std::ifstream in(TESSALY_SOURCE_DIR "/" + path, std::ios::binary);
    return (std::ostringstream() << in.rdbuf()).str();
}

}  // namespace

// A maker was changed and not run, or a file was changed by hand.
TEST(shippeddata, committedFilesAreWhatTheMakersMake) {
    for (const shippedfile& file : shippedfiles())
        EXPECT_TRUE(committed(file.path) == file.bytes) << file.path << ": run makedata in the root";
}

// makedata FOLDER: writes the shipped data, datah/ and pals/, into a working folder. Files that are the same stay
// untouched.
#include "tools/shipped.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

std::string bytesof(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return (std::ostringstream() << in.rdbuf()).str();
}

}  // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "makedata FOLDER\n";
        return 2;
    }
    for (const tessaly::shippedfile& file : tessaly::shippedfiles()) {
        const std::filesystem::path path = std::filesystem::path(words[1]) / file.path;
        if (bytesof(path) == file.bytes) continue;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream out(path, std::ios::binary);
        out << file.bytes;
        if (!out.flush()) {
            std::cerr << "cannot write " << path << "\n";
            return 1;
        }
        std::cout << file.path << "\n";
    }
}

// A temporary working folder for tests, benchmarks and generators.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace tessaly {

class workingfolder {
  public:
    // Creates the folder and makes it the current one. Copies datah and pals from source, or leaves them empty if
    // source is empty. The destructor returns to the previous folder and removes this one.
    explicit workingfolder(const std::filesystem::path& source = {}) {
        namespace fs = std::filesystem;
        std::random_device random;
        do path = fs::temp_directory_path() / ("tessaly-" + std::to_string(random()));
        while (!fs::create_directory(path));
        for (const char* folder : {"designs", "bmps", "nonuser"}) fs::create_directory(path / folder);
        for (const char* data : {"datah", "pals"}) {
            fs::create_directory(path / data);
            if (!source.empty()) fs::copy(source / data, path / data);
        }
        fs::current_path(path);
    }
    ~workingfolder() {
        std::error_code ignored;
        std::filesystem::current_path(previous, ignored);
        std::filesystem::remove_all(path, ignored);
    }
    workingfolder(const workingfolder&) = delete;
    workingfolder& operator=(const workingfolder&) = delete;

  private:
    std::filesystem::path previous = std::filesystem::current_path(), path;
};

}  // namespace tessaly

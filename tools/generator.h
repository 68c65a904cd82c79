// Functions for the generators, which report failures on standard error.
#pragma once

#include "core/failure.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace tessaly {

// Runs a generator and returns its exit status: 0, 1 after an exception, or 2 if the number of arguments is wrong.
// Reports the exception or the usage. usage: the names of the generator and of its arguments, separated by blanks.
template <class procedure>
int rungenerator(int argc, const std::string& usage, procedure generate) {
    if (argc != 1 + std::count(usage.begin(), usage.end(), ' ')) {
        std::fprintf(stderr, "usage: %s\n", usage.c_str());
        return 2;
    }
    const std::string report = reportof(generate);
    if (report.empty()) return 0;
    std::fprintf(stderr, "%s: %s\n", usage.substr(0, usage.find(' ')).c_str(), report.c_str());
    return 1;
}

// Saves a Qt image in the format of the file's extension. Fails if the file cannot be written.
template <class image>
void saveimage(const image& picture, const std::filesystem::path& file) {
    if (!picture.save(file.c_str())) throw std::runtime_error(file.string() + " cannot be written");
}

}  // namespace tessaly

// Shared by the generators. A generator either creates all its files or reports on standard error why it cannot.
#pragma once

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

namespace tessaly {

// Runs a generator; returns its exit status: 1 after an exception, which is reported.
template <class procedure>
int generate(const char* generator, procedure make) {
    try {
        make();
        return 0;
    } catch (const std::exception& failed) {
        std::fprintf(stderr, "%s: %s\n", generator, failed.what());
    } catch (...) {
        std::fprintf(stderr, "%s: an unknown exception\n", generator);
    }
    return 1;
}

// Saves a Qt image in the format of the file's extension. Fails if the file cannot be written.
template <class image>
void saveimage(const image& picture, const std::filesystem::path& file) {
    if (!picture.save(file.c_str())) throw std::runtime_error(file.string() + " cannot be written");
}

}  // namespace tessaly

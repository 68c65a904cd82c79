// The rows stand lowest first, blue before green before red, each filled up to a multiple of four bytes.

#include "render/bitmap.h"

#include "core/failure.h"
#include "core/textfiles.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

namespace tessaly {

namespace {

constexpr std::uint32_t headbytes = 54, infobytes = 40;
constexpr int pixelbytes = 3;
constexpr std::size_t startat = 10, infoat = 14, widthat = 18, heightat = 22, depthat = 28, packedat = 30;
constexpr std::uint32_t dotsametre = 3780;  // 96 to the inch

std::size_t rowbytes(std::size_t width) { return (width * pixelbytes + 3) / 4 * 4; }

void addfigure(std::string& bytes, std::uint32_t figure, int count) {
    for (; count > 0; --count, figure >>= 8) bytes += static_cast<char>(figure & 255);
}

std::uint32_t figureat(std::string_view bytes, std::size_t at, int count) {
    std::uint32_t figure = 0;
    for (; count > 0; --count)
        figure = figure << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(count) - 1]);
    return figure;
}

// Writes a file of these bytes; why it could not, or nothing.
std::error_code errorofwriting(const std::filesystem::path& file, const std::string& bytes) {
    errno = 0;
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    out.close();
    return out ? std::error_code() : std::error_code(errno, std::generic_category());
}

std::string bytesof(const bitmap& picture) {
    const auto width = static_cast<std::uint32_t>(picture.width), height = static_cast<std::uint32_t>(picture.height);
    const auto pixels = static_cast<std::uint32_t>(rowbytes(width)) * height;
    std::string bytes = "BM";
    for (const std::uint32_t figure : {headbytes + pixels, 0U, headbytes, infobytes, width, height})
        addfigure(bytes, figure, 4);
    addfigure(bytes, 1, 2);  // planes
    addfigure(bytes, 8 * pixelbytes, 2);
    for (const std::uint32_t figure : {0U, pixels, dotsametre, dotsametre, 0U, 0U}) addfigure(bytes, figure, 4);
    bytes.reserve(headbytes + pixels);
    for (int y = picture.height - 1; y >= 0; --y) {
        const std::uint32_t* row = picture.pixels.data() + static_cast<std::ptrdiff_t>(y) * picture.width;
        std::for_each(row, row + width, [&](std::uint32_t pixel) { addfigure(bytes, pixel, pixelbytes); });
        bytes.append(rowbytes(width) - width * pixelbytes, '\0');
    }
    return bytes;
}

}  // namespace

void writebitmap(const bitmap& picture, const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code ignored;
    fs::path file = systempath(path);
    if (fs::is_symlink(file, ignored)) file = fs::weakly_canonical(file, ignored);
    if (fs::exists(file, ignored) && (!fs::is_regular_file(file, ignored) || !std::ofstream(file, std::ios::app)))
        throw failure(failurekind::fileaccess, "there is something of that name that cannot be written", path);

    const fs::path unfinished = file.parent_path() / ("." + file.filename().string() + ".part");
    const bool aside = std::ofstream(unfinished).is_open();  // a folder may take no new name and yet this file
    std::error_code failed = errorofwriting(aside ? unfinished : file, bytesof(picture));
    if (aside && !failed) fs::rename(unfinished, file, failed);
    if (!failed) return;
    if (aside) fs::remove(unfinished, ignored);
    throw failure(failurekind::fileaccess, "the picture could not be written in whole: " + failed.message(), path);
}

bitmap readbitmap(const std::string& path) {
    const std::string bytes = filebytes(path, "picture");
    const auto figure = [&](std::size_t at, int count) { return figureat(bytes, at, count); };
    if (bytes.size() < headbytes || !bytes.starts_with("BM") || figure(infoat, 4) != infobytes ||
        figure(depthat, 2) != 8 * pixelbytes || figure(packedat, 4) != 0)
        throw failure(failurekind::invalidcall, "a bitmap of 24 bits a pixel was expected", path + " (picture)");
    const std::size_t width = figure(widthat, 4), height = figure(heightat, 4), start = figure(startat, 4);
    if (std::max(width, height) > 65535 || bytes.size() < start + rowbytes(width) * height)
        throw failure(failurekind::invalidcall, "the file is not whole", path + " (picture)");
    bitmap picture{static_cast<int>(width), static_cast<int>(height), std::vector<std::uint32_t>(width * height)};
    for (std::size_t y = 0; y < height; ++y)
        for (std::size_t x = 0; x < width; ++x)
            picture.pixels[y * width + x] =
                0xff000000U | figure(start + rowbytes(width) * (height - 1 - y) + x * pixelbytes, pixelbytes);
    return picture;
}

}  // namespace tessaly

// The first row of a bitmap file is the lowest. The bytes of a pixel are blue, green and red. Rows are padded to a
// multiple of four bytes.

#include "render/bitmap.h"

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/wholefile.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace tessaly {

namespace {

constexpr std::uint32_t headerbytes = 54, infobytes = 40;  // of the complete header, and of its second part
constexpr int pixelbytes = 3;
constexpr std::size_t maxside = 65535;  // pixels
// Offsets of numbers in the header.
constexpr std::size_t startat = 10, infoat = 14, widthat = 18, heightat = 22, depthat = 28, compressionat = 30;
constexpr std::uint32_t dotspermetre = 3780;  // 96 per inch

std::size_t rowbytes(std::size_t width) { return (width * pixelbytes + 3) / 4 * 4; }

void addnumber(std::string& bytes, std::uint32_t number, int count) {
    for (; count > 0; --count, number >>= 8) bytes += static_cast<char>(number & 255);
}

std::uint32_t numberat(std::string_view bytes, std::size_t offset, int count) {
    std::uint32_t number = 0;
    for (; count > 0; --count)
        number = number << 8 | static_cast<unsigned char>(bytes[offset + static_cast<std::size_t>(count) - 1]);
    return number;
}

std::string bytesof(const bitmap& picture) {
    const auto width = static_cast<std::uint32_t>(picture.width), height = static_cast<std::uint32_t>(picture.height);
    const auto pixels = static_cast<std::uint32_t>(rowbytes(width)) * height;
    std::string bytes = "BM";
    for (const std::uint32_t number : {headerbytes + pixels, 0U, headerbytes, infobytes, width, height})
        addnumber(bytes, number, 4);
    addnumber(bytes, 1, 2);  // planes
    addnumber(bytes, 8 * pixelbytes, 2);
    for (const std::uint32_t number : {0U, pixels, dotspermetre, dotspermetre, 0U, 0U}) addnumber(bytes, number, 4);
    bytes.reserve(headerbytes + pixels);
    for (int y = picture.height - 1; y >= 0; --y) {
        const std::uint32_t* row = picture.pixels.data() + static_cast<std::ptrdiff_t>(y) * picture.width;
        std::for_each(row, row + width, [&](std::uint32_t pixel) { addnumber(bytes, pixel, pixelbytes); });
        bytes.append(rowbytes(width) - width * pixelbytes, '\0');
    }
    return bytes;
}

}  // namespace

void writebitmap(const bitmap& picture, const std::string& path) { replacefile(path, bytesof(picture), "picture"); }

bitmap readbitmap(const std::string& path) {
    const std::string bytes = filebytes(path, "picture");
    const auto number = [&](std::size_t offset, int count) { return numberat(bytes, offset, count); };
    if (bytes.size() < headerbytes || !bytes.starts_with("BM") || number(infoat, 4) != infobytes ||
        number(depthat, 2) != 8 * pixelbytes || number(compressionat, 4) != 0)
        throw failure(failurekind::invalidcall, "a bitmap of 24 bits per pixel was expected",
                      shortpath(path) + " (picture)");
    const std::size_t width = number(widthat, 4), height = number(heightat, 4), start = number(startat, 4);
    // Divides, because the product could overflow a size of 32 bits.
    if (std::max(width, height) > maxside || start > bytes.size() ||
        (height > 0 && rowbytes(width) > (bytes.size() - start) / height))
        throw failure(failurekind::invalidcall, "the file is not complete", shortpath(path) + " (picture)");
    bitmap picture{static_cast<int>(width), static_cast<int>(height), std::vector<std::uint32_t>(width * height)};
    for (std::size_t y = 0; y < height; ++y)
        for (std::size_t x = 0; x < width; ++x)
            picture.pixels[y * width + x] =
                0xff000000U | number(start + rowbytes(width) * (height - 1 - y) + x * pixelbytes, pixelbytes);
    return picture;
}

}  // namespace tessaly

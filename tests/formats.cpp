// Formats shared with other programs: picture files and texts in Windows-1252.
#include "core/characters.h"
#include "picturefiles/picturefile.h"
#include "render/raster.h"
#include "tests/session.h"

#include <QImage>

using namespace tessaly;

// The file has 3780 dots per metre. The part of an image that the file does not cover stays white.
TEST(formats, bitmapsAreWrittenAndReadExactly) {
    session s;
    raster saved(3, 2), loaded(2, 3);
    for (std::uint32_t i = 0; i < 6; ++i) saved.pixels[i] = 0xff000000 | (0x010203 * (i + 1));
    saved.save("bmps\\a.bmp");
    const std::string bytes = s.file("bmps/a.bmp");
    constexpr char expected[] =
        "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\3\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x18\0\0\0\xC4\x0E\0\0\xC4\x0E\0\0"
        "\0\0\0\0\0\0\0\0\xC\x8\4\xF\xA\5\x12\xC\6\0\0\0\3\2\1\6\4\2\x9\6\3\0\0";
    EXPECT_EQ(bytes, std::string(expected, sizeof expected));
    loaded.setpicture("bmps\\a.bmp");
    const std::vector<std::uint32_t>& p = saved.pixels;
    EXPECT_EQ(loaded.pixels, (std::vector<std::uint32_t>{p[0], p[1], p[3], p[4], 0xffffffff, 0xffffffff}));
    for (const std::string& unreadable : {bytes.substr(0, 77), bytes.substr(0, 20), replaced(bytes, "\x18", "\x20")}) {
        s.write("bmps/a.bmp", unreadable);
        expectfailure(failureof([] { readbitmap("bmps\\a.bmp"); }), failurekind::invalidcall, "bmps\\a.bmp");
    }
}

// Only the part of a picture that viewport can show is read. Whatever its name, a file is refused if it could refer to
// other files (SVG), is truncated, or would need gigabytes of memory or hours of time.
TEST(formats, picturesOfReasonableSizeAreRead) {
    const session s;
    usepicturefiles();
    const auto read = [] { return readpicture("bmps\\a.bmp"); };
    const auto expectrefused = [&](const std::string& bytes, const char* why) {
        session::write("bmps/a.bmp", bytes);
        expectfailure(failureof(read), failurekind::invalidcall, why);
    };
    QImage large(2000, 1500, QImage::Format_RGB32), huge(5000, 4000, QImage::Format_Mono);
    large.fill(qRgb(255, 0, 0));
    for (const char* kind : {"bmp", "png", "jpg"}) {
        ASSERT_TRUE(large.save("bmps/a.bmp", kind));
        const bitmap picture = read();
        EXPECT_EQ(picture.width, viewportwidth) << kind;
        EXPECT_EQ(picture.height, viewportheight) << kind;
        EXPECT_EQ(picture.pixels.back() & 0xfffcfcfc, 0xfffc0000) << kind;  // a JPEG is not exact
    }
    const std::string jpeg = session::file("bmps/a.bmp");
    expectrefused(replaced(jpeg, "\xFF\xDA", repeated(101, "\xFF\xDA")), "101 scans");
    huge.fill(0);
    ASSERT_TRUE(huge.save("bmps/a.bmp", "png"));
    const std::string png = session::file("bmps/a.bmp");
    expectrefused(png, "5000 x 4000 pixels, at most 16777216");
    expectrefused(png.substr(0, 40), "bmps\\a.bmp (picture)");
    expectrefused("BM", "not complete");
    expectrefused("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>", "BMP, PNG, JPEG or GIF");
}

TEST(formats, everyByteSurvivesConversionFromAndToWindows1252) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(towindows1252(fromwindows1252(all)), all);
    EXPECT_EQ(
        fromwindows1252("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A"
                        "\x9B\x9C\x9E\x9F \xA0\xFF"),
        "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ \xC2\xA0ÿ");
    EXPECT_EQ(towindows1252("\xF0\x9F\x8F\xA0 \xFFx\xE2\x82"), "? ?x?");  // not in the set; not UTF-8; truncated
}

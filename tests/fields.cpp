// The rules for fields, and the files that they are read from.
#include "core/fields.h"
#include "render/bitmap.h"
#include "tests/session.h"

#include <sys/stat.h>

using namespace tessaly;

namespace {

// Reads fields as given by letters: v value, r record field, s its text, l label, t text field. Returns them with
// blanks between them: texts in quotes, "-" for empty, the kind of a failure.
std::string readall(const std::string& bytes, const std::string& kinds) {
    session::write("f.txt", bytes);
    textinput& in = openinput(1, "f.txt", "test");
    std::string result;
    const auto shown = [](const value& v) { return v.empty() ? "-" : v.isnumber() ? v.text() : '"' + v.text() + '"'; };
    const auto quoted = [](std::string_view text) { return '"' + std::string(text) + '"'; };
    for (const char kind : kinds) {
        if (!result.empty()) result += ' ';
        const auto failed = failureof([&] {
            if (kind == 'v') result += shown(readvalue(in, "it"));
            if (kind == 'r') result += shown(readrecordfield(in, "it"));
            if (kind == 'l') result += std::to_string(readwholenumber(in, "it"));
            if (kind == 's') result += quoted(readrecordtext(in, "it"));
            if (kind == 't') result += quoted(readtextfield(in, "it"));
        });
        if (failed) result += kindname(failed->kind);
    }
    in.close();
    return result;
}

}  // namespace

TEST(fields, areReadByTheRules) {
    struct {
        const char *bytes, *kinds, *expected;
    } const cases[] = {
        {"1,2\r\n3", "vvv", "1 2 3"},
        {"1 ,2", "vv", "1 2"},  // a number ends at a blank and takes one separator with it
        {"1 2\t3", "vvv", "1 2 3"},
        {"1 , ,2", "vvv", "1 - 2"},
        {"1,,2", "vvv", "1 - 2"},
        {",5", "vv", "- 5"},
        {"1,\n2, \r\n\n3,\n4", "vvll", "1 2 3 4"},  // a row may continue on the next line after a comma
        {"a,\nb,c,\n\nd", "ttttt", "\"a\" \"b\" \"c\" \"\" \"d\""},
        {"1,\n2,\nx", "rrrss", "1 - 2 \"\" \"x\""},  // but a design record may not
        {"\n \r\n\n 5", "v", "5"},                   // blank lines are skipped where a number is expected
        {"\n5", "rr", "- 5"},                        // but are an empty field of a record
        {"5\n\n6", "rrr", "5 - 6"},
        {"a b ,c", "tt", "\"a b \" \"c\""},
        {"a, b\nc", "ttt", "\"a\" \"b\" \"c\""},
        {"\n\nx", "ttt", "\"\" \"\" \"x\""},
        {"\"a,\nb\",3", "vv", "\"a,\nb\" 3"},
        {"\"12\" , 4", "vv", "\"12\" 4"},  // a quoted field is a text
        {"\"a\"\n\"b\"", "rr", "\"a\" \"b\""},
        {"12abc,3", "vv", "\"12abc\" 3"},
        {"12 abc,3", "vvv", "12 \"abc\" 3"},
        {"x 1,3", "vv", "\"x 1\" 3"},
        {"-1.5e2\r7", "vv", "-150 7"},  // a carriage return alone also ends a line
        {"2.5,3.5,-0.5,abc,\"7\",8.49", "llllll", "2 4 0 0 7 8"},
        {"abc def,8", "ll", "0 8"},
        {"32767.4,-32768", "ll", "32767 -32768"},
        {"32768", "l", "overflow"},
        {"-32769", "l", "overflow"},
        {"1e999", "v", "overflow"},
        {"5", "vv", "5 input past end of file"},
        {"5,", "vv", "5 input past end of file"},
        {"5\n\n", "vv", "5 input past end of file"},
        {"", "t", "input past end of file"},
    };
    session s(inownfolder);
    for (const bool plain : {true, false}) {
        noshortcuts = plain;
        for (const auto& c : cases) EXPECT_EQ(readall(c.bytes, c.kinds), c.expected) << c.bytes << " as " << c.kinds;
    }
}

// A pipe may never answer, and a large file would not fit into memory.
TEST(fields, onlyRegularFilesUpTo64MBAreOpened) {
    session s(inownfolder);
    ASSERT_EQ(::mkfifo("designs/pipe", 0666), 0);
    session::write("designs/large", "");
    std::filesystem::resize_file("designs/large", (64 << 20) + 1);
    for (const auto open :
         {+[](const char* p) { openinput(1, p, "test"); }, +[](const char* p) { openappend(1, p, "test"); },
          +[](const char* p) { writebitmap(bitmap(), p); }})
        expectfailure(failureof([&] { open("designs\\pipe"); }), failurekind::fileaccess, "not a regular file");
    expectfailure(failureof([] { openinput(1, "designs\\large", "test"); }), failurekind::fileaccess, "67108865 bytes");
    std::filesystem::resize_file("designs/large", 64 << 20);
    EXPECT_EQ(failureof([] { openinput(1, "designs\\large", "test"); }), std::nullopt);
}

TEST(fields, fileListsHoldAllButFoldersAndUnfinishedCaptures) {
    session s(inownfolder);
    for (const char* name : {"designs/b.txt", "designs/a.txt", "designs/.bmp", "designs/.unfinished"})
        session::write(name, "");
    std::filesystem::create_directory("designs/folder");
    EXPECT_EQ(filesin("designs\\"), (std::vector<std::string>{".bmp", "a.txt", "b.txt"}));
    EXPECT_EQ(failureof([] { filesin("gone\\"); })->kind, failurekind::filenotfound);
}

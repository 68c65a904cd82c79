// Records as text, and codes turned back into element files.
#include "building/designfiles.h"
#include "tests/session.h"

using namespace tessaly;

TEST(designfiles, codesTheTableDoesNotKnow) {
    session s;
    struct {
        value kind, code;
        const char* file;
        int mode;
    } const cases[] = {
        {"girder", 44, "before", 9},
        {"roof", "x", "st-roof.txt", 5},
        {"panel", 25, "before", 1},
        {"panel", "x", "before", 1},
        {"panel", 38, "st-panels-4door-both.txt", 1},
        {"Girder", 41, "before", 9},
        {"panel", 1.5, "before", 1},
    };
    for (const auto& c : cases) {
        datafile = "before";
        placemode = 9;
        elementfileforcode(c.kind, c.code);
        EXPECT_TRUE(datafile.is(c.file) && placemode == c.mode) << c.kind.text() << ' ' << c.code.text();
    }
}

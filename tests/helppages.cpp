// The words of the instructions window: they fit their pages, and they say what a user must not miss.
#include "windows/helppages.h"

#include "tests/session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

using namespace tessaly;
using testing::HasSubstr;

namespace {

// A page's text with every run of blanks and line ends as one blank, so that a sentence is found across lines.
std::string sentences(const control& on) {
    for (const helppage& page : helppages) {
        if (page.on != &on) continue;
        std::istringstream words(page.text);
        std::string all, word;
        while (words >> word) all += word + ' ';
        return all;
    }
    ADD_FAILURE() << "no page " << on.name;
    return "";
}

constexpr int cellwidth = 8, cellheight = 16;  // pixels of a fixed-pitch character

}  // namespace

// A line too long is cut or wrapped on the screen, and the tables drawn with blanks fall apart.
TEST(helppages, everyPageFitsItsControl) {
    for (const helppage& page : helppages) {
        const control& box = *page.on;
        EXPECT_EQ(box.kind, controlkind::page) << box.name;
        EXPECT_LE(page.columns * cellwidth, box.place.width / twipsperpixel - 16) << box.name;
        EXPECT_LE(helplines * cellheight, box.place.height / twipsperpixel - 16) << box.name;

        std::istringstream text(page.text);
        std::string line;
        int lines = 0;
        while (std::getline(text, line)) {
            ++lines;
            EXPECT_LE(static_cast<int>(line.size()), page.columns) << box.name << " line " << lines << ": " << line;
            for (const char c : line)
                EXPECT_TRUE(c >= ' ' && c <= '~') << box.name << " line " << lines << ": " << line;
        }
        EXPECT_GT(lines, 10) << box.name;
        EXPECT_LE(lines, helplines) << box.name;
    }
}

TEST(helppages, sayWhatAUserMustNotMiss) {
    const std::string elements = sentences(elementstext1);
    EXPECT_THAT(elements, HasSubstr("The default snip mode is full panel, preselected."));
    EXPECT_THAT(elements, HasSubstr("The default mode is solid rendering."));
    EXPECT_THAT(elements, HasSubstr("WIREFRAME IS RECOMMENDED FOR PANELS DURING DESIGN PHASE."));
    EXPECT_THAT(elements, HasSubstr("RECORD TO FILE MODE"));

    const std::string editing = sentences(elementstext2);
    EXPECT_THAT(editing, HasSubstr("add no line feed behind the last line of data, and leave no blank lines"));
    EXPECT_THAT(editing,
                HasSubstr("The first number of a line matches the element number in the image of the element map."));

    const std::string groups = sentences(filereadertext2);
    EXPECT_THAT(groups, HasSubstr("The first four letters stay \"gird\", \"pane\" or \"roof\"."));
    EXPECT_THAT(groups,
                HasSubstr("In a file given another name the floor digit stays in its place, and the length of the "
                          "name does not change."));

    const std::string captures = sentences(capturetext);
    EXPECT_THAT(captures, HasSubstr("You must include the .bmp file extension when naming a capture."));
    EXPECT_THAT(captures, HasSubstr("The txt file of a capture is not to be deleted unless its bmp file goes too"));
}

TEST(helpwindow, regionsShowTheirPagesAndNoOthers) {
    session s;
    const auto shown = [] {
        std::string pages;
        for (const control* c : instructions.controls)
            if (c->shown && (c->kind == controlkind::page || c == &startpicbox)) pages += c->name + ' ';
        return pages;
    };
    s.start();
    s.click("instructionsbtn");
    EXPECT_EQ(shown(), "startpicbox ");
    s.click("filereaderbtn");
    EXPECT_EQ(shown(), "filereadertext filereadertext2 ");
    s.click("displaybtn");
    s.click("returntomainbtn");
    EXPECT_EQ(shown(), "displaytext ");
    s.click("instructionsbtn");
    EXPECT_EQ(shown(), "startpicbox ");
}

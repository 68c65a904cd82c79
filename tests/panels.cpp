// Clicks on the panel layout: prefix, snip, code and record.
#include "building/designfiles.h"
#include "tests/session.h"

#include <set>

using namespace tessaly;

namespace {

constexpr const char* buttons[] = {"orange1btn", "orange2btn", "orange3btn", "yellow1btn",
                                   "yellow2btn", "yellow3btn", "door2btn",   "door4btn"};

}  // namespace

TEST(panels, recordsOfTheFourFamilies) {
    session s;
    s.start();
    s.click("orange1btn");
    EXPECT_TRUE(layoutpanels.shown && panelprefix.is("st-panels-1or-"));
    for (const char* name : {"pan270x0y208", "pan90x16y0", "pan0x0y0", "pan180x208y16", "pan180x784y1168"})
        s.click(name);
    EXPECT_EQ(session::file("designs/panels1.txt"), "\"panel\",1,0,104,1,0,270,0,208,2,64\r\n"
                                                    "\"panel\",43,16,104,1,0,90,16,0,2,64\r\n"
                                                    "\"panel\",85,104,0,1,0,0,0,0,4,64\r\n"
                                                    "\"panel\",125,104,16,1,0,180,208,16,4,64\r\n"
                                                    "\"panel\",155,680,784,1,0,180,784,1168,4,64\r\n");
}

// A snip holds for one click; the next panel is full again.
TEST(panels, aSnipHoldsForOneClick) {
    session s;
    s.start();
    s.click("yellow2btn");
    struct {
        const char *button, *text, *file;
        int code;
    } const snips[] = {{"snipleftbtn", "snip left side", "st-panels-2yel-left.txt", 14},
                       {"sniprighbtn", "snip right side", "st-panels-2yel-righ.txt", 15},
                       {"snipbothbtn", "snip both sides", "st-panels-2yel-both.txt", 35}};
    for (const auto& snip : snips)
        for (const bool picked : {false, true}) {
            if (picked)
                s.pick("panelsnipper", snip.text);
            else
                s.click(snip.button);
            EXPECT_EQ(panelsnipper.text, snip.text);
            s.click("pan0x0y0");
            EXPECT_TRUE(datafile.is(snip.file) && panelcode == snip.code) << snip.text;
            EXPECT_EQ(panelsnipper.text, "Full panel");
            s.click("pan0x0y0");
            EXPECT_TRUE(datafile.is("st-panels-2yel-full.txt") && panelcode == 13);
        }
}

// Typed text that is no snip names a file that is not there, keeps the last code, and is full again all the same.
TEST(panels, unknownSnipsKeepTheCode) {
    session s;
    s.start();
    s.click("orange3btn");
    s.click("snipleftbtn");
    s.click("pan0x0y0");
    s.type("panelsnipper", "snip Left side");
    EXPECT_EQ(failureof([&] { s.click("pan0x0y0"); })->kind, failurekind::filenotfound);
    EXPECT_TRUE(datafile.is("st-panels-3or-.txt") && panelcode == 8 && panelsnipper.text == "Full panel");
    const std::string record = "\"panel\",85,104,0,8,0,0,0,0,4,64\r\n";
    EXPECT_EQ(session::file("designs/panels1.txt"), record + record);
    s.type("panelsnipper", "snip both sides");  // typed as it stands it is as good as picked
    s.click("pan0x0y0");
    EXPECT_EQ(panelcode, 33);
}

TEST(panels, noPanelWasChosen) {
    session s;
    s.start();
    EXPECT_EQ(failureof([&] { s.click("pan0x0y0"); })->kind, failurekind::filenotfound);
    EXPECT_EQ(session::file("designs/panels1.txt"), "\"panel\",85,104,0,,0,0,0,0,4,64\r\n");
}

// Every button and snip has a code and a file of its own; a record's code leads back to the file of the click. The
// panels with two doors are filled twice as densely, but for their snip on both sides.
TEST(panels, codesLeadBackToFiles) {
    session s;
    s.start();
    std::set<std::string> files;
    std::set<double> codes;
    for (const char* button : buttons)
        for (const std::string& snip : std::vector<std::string>(panelsnipper.items)) {
            s.click(button);
            s.pick("panelsnipper", snip);
            s.takelines();
            s.click("pan0x0y0");
            const std::string file = datafile.text();
            files.insert(file);
            codes.insert(panelcode);
            EXPECT_EQ(divisions, button == std::string("door2btn") && snip != "snip both sides" ? 400 : 200) << file;
            datafile = placemode = value();
            elementfileforcode("panel", panelcode);
            EXPECT_TRUE(datafile.is(file) && placemode == 1) << file;
        }
    EXPECT_EQ(files.size(), 32U);
    EXPECT_EQ(codes.size(), 32U);
    EXPECT_TRUE(*codes.begin() == 1 && *codes.rbegin() == 38 && codes.count(24) && !codes.count(25) && codes.count(31));
}

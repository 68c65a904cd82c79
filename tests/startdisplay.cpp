// The start-up display over small start files of the tests' own: order of drawing, the state it leaves, what is
// missing.
#include "data/startdisplay.h"

#include "render/palette.h"
#include "tests/session.h"

using namespace tessaly;

namespace {

const std::vector<std::string> keys{
    "DEFAULTVIEW:",        "HighZ(full)",         "HighZ(zoom)",        "FarX(full)",   "FarX(zoom)",
    "FarY(full)",          "FarY(zoom)",          "Perspective1",       "Perspective2", "Perspective3",
    "Perspective4",        "Perspective5",        "Perspective6",       "DEFAULTPAL:",  "BACKGROUNDCOLOR:",
    "DISPLAYSTARTGROUP1:", "DISPLAYSTARTGROUP2:", "DISPLAYSTARTGROUP3:"};

// A start file; with left, one key of it is missing.
std::string startfile(const std::string& left = "") {
    std::string text = "Free text, with commas\n\n";
    for (const std::string& key : keys) {
        if (key != left) text += key + "\n";
        if (key == "DEFAULTVIEW:")
            text += "1850,-1850,830,0,0,280\n0.056, 170 -270\n";
        else if (key == "DEFAULTPAL:")
            text += "test\n";
        else if (key == "BACKGROUNDCOLOR:")
            text += "10.6,20,300\n";
        else if (key.starts_with("DISPLAY"))
            text += std::vector<std::string>{"st-a\n", "st-b\n", "move\n"}.at(static_cast<std::size_t>(key[17] - '1'));
        else
            text += "11,22,33,1,2,3,0.5,6,7\n";
    }
    return text;
}

// One line of its own height and colour.
std::string group(const char* prefix, int height, int wire) {
    const std::string z = std::to_string(height);
    if (prefix == std::string("st"))
        return elementtext{.wirecolours = std::to_string(wire) + ",0,0,0,0,0,0",
                           .points = "1,10,20," + z + "\n2,200,30," + z + "\n",
                           .lines = {"1,2\n"}};
    return "TRAN\nZTRANSFORMATIONS:\n2," + z + "\n9999,0\nTRAN\nSTOP\n";
}

std::string palettefile(int records) {
    std::string bytes;
    for (int k = 1; k <= records; ++k)
        for (const int figure : {999, k + 2, k + 1, k}) {  // unused, blue, green, red
            bytes += static_cast<char>(figure & 255);
            bytes += static_cast<char>(figure >> 8);
        }
    return bytes;
}

filesbypath startfolder() {
    return {{"datah/start.txt", startfile()},
            {"datah/st-a.txt", group("st", 5, 30)},
            {"datah/st-b.txt", group("st", 50, 40)},
            {"datah/move.txt", group("mo", 90, 0)},
            {"pals/test.pal", palettefile(236)}};
}

}  // namespace

TEST(startdisplay, paintsTheBackgroundAndTheGroupsInOrder) {
    session s(startfolder());
    s.start();
    const auto& l = s.lines();
    ASSERT_EQ(l.size(), 1010U + 3);
    const colour back{11, 20, 255};  // rounded, and no more than 255
    EXPECT_EQ(l[0], (drawnline{1, 1, 1450, 1, back}));
    EXPECT_EQ(l[1009], (drawnline{1, 1010, 1450, 1010, back}));
    EXPECT_EQ(l[1010].c, (colour{30, 31, 32}));
    EXPECT_EQ(l[1011].c, (colour{40, 41, 42}));
    // A name of other letters runs its script on the tables as they stand: the second group with one end raised. Its
    // points are on the focus already and are moved onto it once more, but for what the script set.
    EXPECT_EQ(l[1012].c, (colour{40, 41, 42}));
    EXPECT_EQ(basez[2], 90);
}

TEST(startdisplay, leavesTheStateOfADefaultView) {
    session s(startfolder());
    s.start();
    EXPECT_TRUE(perpx == 1850 - 0.1 && perpy == -1850 - 0.1 && perpz == 550 && perprelx == perpx && perprelative == 1);
    EXPECT_TRUE(focusx == 0.1 && focusy == 0.1 && focusz == 280 && vertshift == 170 && horizshift == -270);
    EXPECT_TRUE(mag == 0.56 && plotstate == 2 && preopened == 0 && startstep == 2 && drawset.empty());
    EXPECT_TRUE(viewprompt.is("AUTOMA") && palname.is("test") && startgroup3.is("move"));
    EXPECT_TRUE(perptxtx.text == "1850" && focustxtx.text == "0.1" && magtxt.text == "0.056" &&
                horiztxt.text == "-270");
    EXPECT_TRUE(viewpreset[1] == 10 && viewpreset[2] == 20 && viewpreset[3] == 30 && viewpreset[108] == 7);
    EXPECT_TRUE(vistaplan.shown && !startform.shown && wiresolid.text == "solid" && writefilebox.text == "on" &&
                floor.text == "1");
    EXPECT_EQ(failureof([] { openinput(1, "datah\\start.txt", "test"); }), std::nullopt);  // channel 1 is closed
}

// The markers button draws over what is there, from the view in force, and does not read start.txt again.
TEST(startdisplay, markersComeBackOverThePicture) {
    session s(startfolder());
    s.start();
    const auto first = s.takelines();
    s.click("roofbtn");
    std::filesystem::remove("datah/start.txt");
    perprelx = 900;
    s.click("groupbtn");
    EXPECT_EQ(s.lines().size(), 3U);
    EXPECT_NE(s.lines()[0], first[1010]);
    EXPECT_TRUE(!layoutroof.shown && mag == 0.56 && perpx == 900);
}

TEST(startdisplay, clearScreenPaintsTheBackground) {
    session s(startfolder());
    s.start();
    const std::vector<drawnline> before(s.lines().begin(), s.lines().begin() + 1010);
    s.takelines();
    s.click("fillscreen");
    EXPECT_EQ(s.lines(), before);
}

// Palettes: fixed records, blue before green before red; what lies behind the end of the file is black.
TEST(startdisplay, palettesMayBeShortOrMissing) {
    filesbypath files = startfolder();
    files["pals/test.pal"] = palettefile(35) + "\1\0\2";
    session s(files);
    s.start();
    EXPECT_TRUE(palred[35] == 35 && palblue[35] == 37 && palred[36] == 0 && palblue[36] == 0 && palred[237].empty());
    EXPECT_EQ(s.lines()[1010].c, (colour{30, 31, 32}));
    EXPECT_EQ(s.lines()[1011].c, colour{});
    std::filesystem::remove("pals/test.pal");
    s.click("groupbtn");
    EXPECT_EQ(palred[30], 0);
}

TEST(startdisplay, everyKeyMustBeThere) {
    for (const std::string& key : keys) {
        session s({{"datah/start.txt", startfile(key)}});
        const auto f = failureof([&] { s.start(); });
        expectfailure(f, failurekind::inputpastend, "datah\\start.txt");
        expectfailure(f, failurekind::inputpastend, "looking for " + key);
        EXPECT_FALSE(vistaplan.shown);
    }
}

TEST(startdisplay, mistakesOfTheStartFiles) {
    struct {
        const char *path, *taken, *put;
        failurekind kind;
        const char* told;
    } const cases[] = {
        {"datah/start.txt", "st-b", "st-gone", failurekind::filenotfound, "datah\\st-gone.txt"},
        {"datah/start.txt", "-1850,830", "-185O,830", failurekind::typemismatch, "\"-185O\""},
        {"datah/start.txt", "300\n", "40000\n", failurekind::overflow, "40000"},
        {"datah/start.txt", "10.6", "-1", failurekind::invalidcall, "(BACKGROUNDCOLOR:): colour component -1"},
        {"datah/st-b.txt", "1,2\n", "1,10001\n", failurekind::subscript, "datah\\st-b.txt, line"},
        {"datah/start.txt", "11,22,33,1,2,3,0.5,6,7\nDEFAULTPAL", "11,22,33,1,2,3,0.5,6\nDEFAULTPAL",
         failurekind::inputpastend, "looking for DEFAULTPAL:"},
        {"datah/st-b.txt", "TRAN", "", failurekind::inputpastend, "looking for TRAN"},
        {"datah/move.txt", "STOP", "", failurekind::inputpastend, "datah\\move.txt"},
    };
    for (const auto& c : cases) {
        filesbypath files = startfolder();
        files[c.path] = replaced(files[c.path], c.taken, c.put);
        session s(files);
        expectfailure(failureof([&] { s.start(); }), c.kind, c.told);
    }
    // Text between keys is free, but for a key as a field of its own.
    filesbypath files = startfolder();
    std::string& text = files["datah/start.txt"];
    text = replaced(text, "DEFAULTPAL:", "see DEFAULTPAL: below, DEFAULTPAL:,other\nDEFAULTPAL:");
    session s(files);
    s.start();
    EXPECT_TRUE(palname.is("other"));
}

// No folder of designs or bitmaps: the load of the main window fails before anything is drawn.
TEST(startdisplay, foldersMustExist) {
    for (const char* folder : {"designs", "bmps"}) {
        session s(startfolder());
        std::filesystem::remove(folder);
        expectfailure(failureof([&] { s.start(); }), failurekind::filenotfound, "is no working folder: ./run.sh");
        EXPECT_TRUE(s.lines().empty());
    }
    session s(startfolder());
    std::filesystem::remove_all("pals");  // a palette may be missing, its folder may not
    expectfailure(failureof([&] { s.start(); }), failurekind::filenotfound, "pals\\ (folder)");
}

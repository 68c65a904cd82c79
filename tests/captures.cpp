// Captures: the record's exact bytes, what comes back, and what every failure leaves behind.
#include "tests/viewlines.h"

namespace tessaly {
namespace {

// A picture file here is a line of text: which capture it was.
struct album : recorder {
    void save(const std::string& path) override {
        std::ofstream out(systempath(path));
        if (!out) throw failure(failurekind::fileaccess, path);
        out << "picture " << ++saved;
    }
    void setpicture(const std::string& path) override { background = filebytes(path, "picture"); }
    int saved = 0;
    std::string background;
};

struct capturing : session {
    album pictures;
    capturing() {
        viewportsurface = &pictures;
        start();
        click("defaultviewbtn");
        click("defaultviewbtn");
    }
    void capture(const std::string& name) {
        click("screencapbtn");
        type("capbox", name);
        click("screencapenter");
    }
    // Retrieves a file, and tells which picture came back.
    std::string retrieve(const std::string& name) {
        pictures.background.clear();
        click("retrieveimagetbtn");
        pick("bmplistbox", name);
        click("displayimagebtn");
        EXPECT_TRUE(!bmplistbox.shown && !displayimagebtn.shown && !delbmpbtn.shown && !closebmpbtn.shown);
        return pictures.background;
    }
    static std::string view() {
        std::string all;
        for (const control* c :
             {&perptxtx, &perptxty, &perptxtz, &focustxtx, &focustxty, &focustxtz, &magtxt, &verttxt, &horiztxt})
            all += c->text + ' ';
        return all;
    }
};

const std::string defaultrecord = "\"1850\",\"-1850\",\"830\",\"0\",\"0\",\"280\",\"0.056\",\"170\",\"-270\"\r\n";
const std::string defaultview = "1850 -1850 830 0 0 280 0.056 170 -270 ";

TEST(capture, writesARecordOfTheBoxesBesideTheBitmap) {
    capturing s;
    s.click("screencapbtn");
    EXPECT_TRUE(wantedfocus == &capbox && bmplabel.shown && screencapenter.shown && capescapebtn.shown);
    s.type("capbox", "view1.bmp");
    s.click("capescapebtn");
    EXPECT_TRUE(std::filesystem::is_empty("bmps") && capbox.text.empty() && !capbox.shown && !bmplabel.shown);
    s.capture("view1.bmp");
    EXPECT_EQ(s.file("bmps/view1.txt"), defaultrecord);
    EXPECT_FALSE(bmplabel.shown);
    s.type("perptxtx", "a \"\xE2\x82\xAC\" \xC3\xA9 \xE6\xBC\xA2");  // as typed, not as SET, nothing escaped
    s.capture("view1.bmp");
    EXPECT_EQ(s.file("bmps/view1.bmp"), "picture 2");
    EXPECT_EQ(s.file("bmps/view1.txt"), defaultrecord + "\"a \"\x80\" \xE9 ?\"" + defaultrecord.substr(6));
    s.capture("view1");  // the last four characters go, whatever they are
    EXPECT_NE(s.file("bmps/v.txt"), "(none)");
}

TEST(capture, failuresAreNotTrapped) {
    capturing s;
    const auto kindof = [&](const char* name) { return failureof([&] { s.capture(name); })->kind; };
    EXPECT_EQ(kindof("\xC3\xA9\xC3\xA9\xC3\xA9"), failurekind::invalidcall);  // three characters
    EXPECT_TRUE(std::filesystem::is_empty("bmps"));
    EXPECT_EQ(kindof("no/view.bmp"), failurekind::filenotfound);
    EXPECT_TRUE(capbox.shown);
    std::filesystem::create_directory("bmps/view.bmp");
    EXPECT_EQ(kindof("view.bmp"), failurekind::fileaccess);
    EXPECT_EQ(s.file("bmps/view.txt"), defaultrecord);  // the record was written before
    EXPECT_FALSE(capbox.shown);
}

TEST(retrieval, bringsViewAndPictureBackByEitherFile) {
    capturing s;
    s.capture("view1.bmp");
    for (const char* name : {"view1.bmp", "view1.txt"}) {
        s.click("vertperpplusbtn");
        s.click("vertinc");
        s.capture("view1.bmp");
        EXPECT_EQ(s.retrieve(name), "picture " + std::to_string(s.pictures.saved));
        EXPECT_EQ(s.view(), defaultview);  // the first record's view with the last picture
        EXPECT_EQ(eperpzbox.text + ' ' + efocuszbox.text, "830 280");
        EXPECT_TRUE(!capbox.shown && perprelative == 1 && mag == 0.56);
    }
    s.click("vertperpminusbtn");
    EXPECT_EQ(perptxtz.text, "730");
    s.write("bmps/long.txt", "\"1234.\",\"-1850.56789\",\"830\",\"20.\",\"30\",\"280.\",\".06\",\"170.\",\"-270\"\r\n");
    s.retrieve("long.txt");
    EXPECT_EQ(s.view(), "1234 -1850.567 830 20 30 280 0.06 170 -270 ");  // numbers, nine characters of each

    s.write("bmps/near.txt", "\"1000\",\"-1500\",\"830\",\"20\",\"30\",\"280\",\"0.06\",\"170\",\"-270\"\r\n");
    s.pictures.drawn.clear();
    s.retrieve("near.txt");
    const std::vector<drawnline> redrawn(s.pictures.drawn.begin() + 829, s.pictures.drawn.end());
    s.click("cventerbtn");
    EXPECT_EQ(redrawn, lastpicture(s.pictures.drawn));  // from the placed points

    s.click("groupbtn");
    s.retrieve("view1.bmp");
    EXPECT_EQ(focustxtx.text, "0.1");  // the markers ask for the fix-up again
}

TEST(retrieval, failuresEndItWithoutAWord) {
    capturing s;
    s.capture("view1.bmp");
    for (const char* file : {"none.bmp", "abc", "view1.dat", "other.BMP"}) s.write(std::string("bmps/") + file, file);
    s.write("bmps/other.txt", "\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"0.05\",\"8\",\"9\"\r\n");
    s.write("bmps/bad.txt", "\"1\",\"2\",\"3\",\"4\",\"five\",\"6\",\"0.05\",\"8\",\"9\"\r\n");

    EXPECT_EQ(s.retrieve("view1.dat"), "");  // another ending, no retrieval before
    s.click("retrieveimagetbtn");
    s.click("displayimagebtn");             // nothing picked
    EXPECT_EQ(s.retrieve("abc"), "");       // too short
    EXPECT_EQ(s.retrieve("none.bmp"), "");  // no record
    EXPECT_EQ(s.view(), defaultview);
    EXPECT_EQ(s.retrieve("view1.bmp"), "picture 1");
    EXPECT_EQ(s.retrieve("other.BMP"), "picture 1");  // not ".bmp": the picture of the retrieval before
    EXPECT_EQ(s.view(), "1 2 3 4 5 6 0.05 8 9 ");
    s.retrieve("view1.bmp");
    EXPECT_EQ(s.retrieve("other.txt"), "");  // its bitmap is not there, its view is
    EXPECT_EQ(s.view(), "1 2 3 4 5 6 0.05 8 9 ");
    s.retrieve("bad.txt");  // a figure that is no number leaves the view half set
    EXPECT_EQ(s.view(), "1 2 3 4 5 6 0.05 8 9 ");
    EXPECT_TRUE(perprelative == 0 && focusy.is("five"));
}

TEST(retrieval, aRecordThatEndsEarlyHoldsTheChannel) {
    capturing s;
    s.capture("view1.bmp");
    s.write("bmps/short.txt", "\"1\",\"2\",\"3\"\r\n");
    EXPECT_EQ(s.retrieve("short.txt"), "");
    EXPECT_EQ(perpx, 1850);
    EXPECT_EQ(s.retrieve("view1.bmp"), "");
    EXPECT_EQ(failureof([&] { s.capture("view2.bmp"); })->kind, failurekind::filealreadyopen);
}

// A name may hold what is no letter to other systems, or to anybody.
TEST(retrieval, actsOnThePickedFileWhateverItsNameLooksLike) {
    capturing s;
    std::filesystem::create_directory("bmps/old");
    s.write("bmps/old/view1.bmp", "another picture");
    for (const char* name : {"old\\view1.bmp", "\xE9\xFF.bmp"}) {
        s.capture(name);
        EXPECT_EQ(s.retrieve(name), "picture " + std::to_string(s.pictures.saved)) << name;
        s.click("retrieveimagetbtn");
        s.pick("bmplistbox", name);
        s.click("delbmpbtn");
        EXPECT_EQ(s.file("bmps/" + std::string(name)), "(none)");
    }
    EXPECT_EQ(s.file("bmps/old/view1.bmp"), "another picture");
}

TEST(retrieval, deletesOneFileAndLeavesItsNameInTheList) {
    capturing s;
    s.click("delbmpbtn");  // nothing picked
    s.capture("view1.bmp");
    s.click("retrieveimagetbtn");
    s.pick("bmplistbox", "view1.bmp");
    for (int twice = 0; twice < 2; ++twice) s.click("delbmpbtn");
    EXPECT_EQ(bmplistbox.items, (std::vector<std::string>{"view1.bmp", "view1.txt"}));
    EXPECT_EQ(s.file("bmps/view1.bmp") + s.file("bmps/view1.txt"), "(none)" + defaultrecord);
}

}  // namespace
}  // namespace tessaly

// The design file list, and the way out of the readers' lists.
#include "tests/replaysession.h"

using namespace tessaly;

TEST(filelist, deletesThePickedFileAndClosesTheList) {
    replaysession s;
    s.design("roofs1.txt", roof);
    s.design("girders1.txt", post(1, 8, 8));
    s.click("displayfilelistbtn");
    EXPECT_TRUE(designfileslist.shown && closefilelistbtn.shown && !killfilebtn.shown);
    EXPECT_EQ(designfileslist.items, (std::vector<std::string>{"girders1.txt", "roofs1.txt"}));
    s.pick("designfileslist", "roofs1.txt");
    EXPECT_TRUE(killfilebtn.shown);
    s.click("closefilelistbtn");
    EXPECT_FALSE(designfileslist.shown || closefilelistbtn.shown || killfilebtn.shown);
    s.click("displayfilelistbtn");
    s.pick("designfileslist", "roofs1.txt");
    s.click("killfilebtn");
    EXPECT_EQ(s.file("designs/roofs1.txt"), "(none)");
    EXPECT_NE(s.file("designs/girders1.txt"), "(none)");
    EXPECT_EQ(designfileslist.items, std::vector<std::string>{"girders1.txt"});
    EXPECT_FALSE(designfileslist.shown || closefilelistbtn.shown || killfilebtn.shown);
    EXPECT_EQ(firstfilename.text(), "roofs1.txt");  // the painter goes by it until another name comes
}

// A name from elsewhere may hold a backslash: it is a letter, and no way into another folder.
TEST(filelist, deletesAndReplaysWhatWasPickedWhateverItsNameLooksLike) {
    replaysession s;
    const std::string odd = "girders1\\..\\girders1.txt";
    std::filesystem::create_directory("designs/girders1");
    s.design("girders1.txt", post(1, 8, 8));
    s.design(odd, post(1, 200, 8) + post(2, 392, 8));
    EXPECT_EQ(s.wire(odd).size(), 2U);
    s.click("displayfilelistbtn");
    s.pick("designfileslist", odd);
    s.click("killfilebtn");
    EXPECT_EQ(designfileslist.items, std::vector<std::string>{"girders1.txt"});
}

TEST(filelist, fileThatIsGoneAlreadyIsAFailure) {
    replaysession s;
    s.design("girders1.txt", "");
    s.click("displayfilelistbtn");
    s.pick("designfileslist", "girders1.txt");
    std::filesystem::remove("designs/girders1.txt");
    EXPECT_EQ(failureof([&] { s.click("killfilebtn"); }).value().kind, failurekind::filenotfound);
}

TEST(filelist, escapeClosesEveryFirstListAndNoOther) {
    replaysession s;
    for (const char* button : {"autowiresingle", "autosolidsingle", "autowirebtn", "autosolidbtn"}) s.click(button);
    for (control* c : {&autofile2, &autofile4, &selectpanelfile, &designfileslist}) show(*c);
    s.click("escapefilelistbtn");
    for (control* c :
         {&escapefilelistbtn, &selectgirderfile, &autofile, &autofile1, &autofile3, &autofile5, &autohintbox})
        EXPECT_FALSE(c->shown) << c->name;
    EXPECT_TRUE(autofile2.shown && autofile4.shown && selectpanelfile.shown && designfileslist.shown);
}

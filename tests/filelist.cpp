// The design file list, and the way out of the readers' lists.
#include "tests/replaysession.h"

using namespace tessaly;

TEST(filelist, deletesThePickedFileAndClosesTheList) {
    replaysession s;
    s.design("roofs1.txt", roof);
    s.design("girders1.txt", post(1, 8, 8));
    for (const char* last : {"closefilelistbtn", "killfilebtn"}) {
        s.click("displayfilelistbtn");
        EXPECT_EQ(designfileslist.items, (std::vector<std::string>{"girders1.txt", "roofs1.txt"}));
        EXPECT_TRUE(designfileslist.shown && closefilelistbtn.shown && !killfilebtn.shown);
        s.pick("designfileslist", "roofs1.txt");
        EXPECT_TRUE(killfilebtn.shown);
        s.click(last);
        EXPECT_FALSE(designfileslist.shown || closefilelistbtn.shown || killfilebtn.shown);
    }
    EXPECT_EQ(s.file("designs/roofs1.txt"), "(none)");
    EXPECT_EQ(designfileslist.items, std::vector<std::string>{"girders1.txt"});
    EXPECT_EQ(firstfilename.text(), "roofs1.txt");  // the painter goes by it until another name comes
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

// The player as a process: what scripts may ask for, what it writes, and the statuses of its ends.
#include "tests/session.h"

#include <sys/wait.h>

using namespace tessaly;

namespace {

struct played {
    int status;
    std::string out, err;
};

// Plays a script in the session's folder.
played play(const std::string& script, const std::string& how = "s.play") {
    session::write("s.play", script);
    const int result = std::system((TESSALY_PLAY " " + how + " >out.txt 2>err.txt").c_str());
    return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, session::file("out.txt"), session::file("err.txt")};
}

// The rest of the line of out that begins with front; "(none)" where there is none.
std::string lineof(const std::string& out, const std::string& front) {
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(front + " ")) return line.substr(front.size() + 1);
    return "(none)";
}

const std::string post = "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n";

}  // namespace

TEST(play, endsByScriptOrByExit) {
    session s;
    const played all = play("# a comment\n\n  say  two  blanks \nsay\r\nclick startprogrambtn\nsay end");
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(all.out, " two  blanks \n\nend\n");
    EXPECT_EQ(all.err, "");
    const played gone = play("click startprogrambtn\nclick exitbtn\nsay never\nno such command\n", "- <s.play");
    EXPECT_TRUE(gone.status == 0 && gone.out.empty() && gone.err.empty());
    EXPECT_EQ(play("close startform\nnonsense").status, 0);
    EXPECT_EQ(play("click startprogrambtn\nclose vistaplan\nnonsense").status, 0);
    EXPECT_EQ(play("", "none.play").status, 2);
    EXPECT_EQ(play("", "datah").status, 2);  // a folder
    EXPECT_EQ(play("", "").status, 2);
}

// What no user could do is an error of the script, told with its line; what was done before stands.
TEST(play, errorsOfTheScript) {
    const std::string start = "click startprogrambtn\n", girder = start + "click postbeambtn\n";
    const struct {
        std::string script, told;
    } cases[] = {
        {"jump", "line 1: there is no command jump"},
        {"click exitbtn", "line 1: exitbtn is in the window vistaplan, which is hidden"},
        {start + "click startprogrambtn", "line 2: startprogrambtn is in the window startform, which is hidden"},
        {start + "\n# x\nclick killfilebtn", "line 4: killfilebtn is hidden"},
        {start + "click postx0y16", "line 2: postx0y16 is in the window layoutgirder"},
        {girder + "close layoutgirder\nclick postx0y16", "line 4: postx0y16 is in the window layoutgirder"},
        {girder + "close layoutgirder\nclose layoutgirder", "line 4: the window layoutgirder is hidden"},
        {girder + "click groupbtn\nclick postx0y16", "line 4: postx0y16 is in the window layoutgirder"},
        {start + "click nosuchbtn", "line 2: there is no control nosuchbtn"},
        {start + "click Floor", "line 2: there is no control Floor"},
        {start + "click floorlabel", "line 2: floorlabel is not a button"},
        {start + "click floor", "line 2: floor is not a button"},
        {start + "click", "line 2: a name was expected"},
        {start + "click postbeambtn now", "line 2: nothing more was expected"},
        {start + "pick floorlist \"3\"", "line 2: floorlist is hidden"},
        {start + "click floorbtn\npick floorlist \"10\"", "line 3: floorlist has no entry \"10\""},
        {start + "click floorbtn\npick floorlist 3", "line 3: a text in double quotes was expected"},
        {start + "pick floorbtn \"3\"", "line 2: floorbtn is not a list"},
        {start + "click floorbtn\ntype floorlist \"3\"", "line 3: floorlist is not a box to type into"},
        {start + "type floor \"3", "line 2: the closing double quote is missing"},
        {start + "type floor \"\\t\"", "line 2: a backslash inside quotes"},
        {start + "type perptxtx \"1\"", "line 2: perptxtx is hidden"},
        {start + "close mainwindow", "line 2: there is no window mainwindow"},
        {start + "show all", "line 2: nothing more was expected"},
        {start + "picture", "line 2: a file name was expected"},
        {start + "picture view.gif", "line 2: file access error: view.gif"},
        {start + "picture none/view.png", "line 2: file access error: none/view.png"},
        {start + "lines none/x", "line 2: the file none/x cannot be written"},
    };
    session s;
    for (const auto& c : cases) {
        const played p = play("say begun\n" + c.script);
        EXPECT_EQ(p.status, 2) << c.script;
        const std::size_t digit = c.told.find(' ') + 1;  // the line that says begun comes first
        const std::string told =
            "line " + std::to_string(std::stoi(c.told.substr(digit)) + 1) + c.told.substr(c.told.find(':'));
        EXPECT_NE(p.err.find(told), std::string::npos) << c.script << '\n' << p.err;
        EXPECT_EQ(p.out, "begun\n");
    }
}

TEST(play, showsWindowsControlsAndValues) {
    session s;
    const played p =
        play("show\nsay ----\nclick startprogrambtn\nclick floorbtn\npick floorlist \"4\"\nclick floorbtn\n"
             "type wiresolid \"\\\"a\\\\b\\r\\nc\xC3\xA9\"\nclick postbeambtn\nclick postx0y16\nshow\n");
    ASSERT_EQ(p.status, 0) << p.err;
    const std::size_t cut = p.out.find("----\n");
    const std::string before = p.out.substr(0, cut), after = p.out.substr(cut);

    EXPECT_TRUE(before.starts_with("window startform shown\nwindow vistaplan hidden\nwindow layoutgirder hidden\n"
                                   "window layoutpanels hidden\nwindow layoutroof hidden\nwindow easyviews hidden\n"
                                   "window instructions hidden\ncontrol Label1 shown \"Tessaly  Girder"));
    EXPECT_EQ(lineof(before, "value mag"), "empty");
    EXPECT_EQ(lineof(before, "control exitbtn"), "shown \"Exit\"");  // its own state, in a hidden window
    EXPECT_EQ(lineof(before, "control floorlist"), "hidden \"\"");
    EXPECT_EQ(lineof(after, "window startform"), "hidden");
    EXPECT_EQ(lineof(after, "window layoutgirder"), "shown");
    EXPECT_EQ(lineof(after, "control floorlist"), "shown \"4\"");
    EXPECT_EQ(lineof(after, "control wiresolid"), "shown \"\\\"a\\\\b\\r\\nc\xC3\xA9\"");
    EXPECT_EQ(lineof(after, "control panelsnipper"), "shown \"Full panel\"");
    EXPECT_EQ(lineof(after, "value magshown"), "0.05600000000000001");
    EXPECT_EQ(lineof(after, "value perpx"), "1849.9");
    EXPECT_EQ(lineof(after, "value viewprompt"), "\"AUTOMA\"");
    EXPECT_EQ(lineof(after, "value floorname"), "\"4\"");
    EXPECT_EQ(lineof(after, "value placez"), "384");
    EXPECT_EQ(lineof(after, "value elementkind"), "\"girder\"");
    EXPECT_EQ(lineof(after, "value drawset"), "1");
    for (const char* name : {"rotstage", "rotboxx", "rotboxy", "panelprefix", "combinedcount", "bmpimage"})
        EXPECT_EQ(lineof(after, std::string("value ") + name), "empty") << name;
    EXPECT_TRUE(after.ends_with("value ptcount2 0\nvalue ptcount3 0\nvalue ptcount4 0\n"));
}

// Each line drawn, faces included, in the figures that tell every single-precision value; nothing once it ends.
TEST(play, logsEveryLine) {
    session s;
    const std::string clicks = "click startprogrambtn\nclick postbeambtn\nlines post.txt\nclick postx0y16\n";
    ASSERT_EQ(play(clicks + "picture a.png\nlines clear.txt\nclick fillscreen\nlines\nclick postx0y16\n").status, 0);
    s.start();
    s.takelines();
    s.click("postx0y16");
    std::string expected;
    for (const drawnline& l : s.lines()) {
        char row[200];
        std::snprintf(row, sizeof row, "%.9g %.9g %.9g %.9g %d %d %d\n", double(l.x1), double(l.y1), double(l.x2),
                      double(l.y2), l.c.red, l.c.green, l.c.blue);
        expected += row;
    }
    EXPECT_GT(s.lines().size(), 2000U);
    EXPECT_TRUE(session::file("post.txt") == expected);
    const std::string cleared = session::file("clear.txt");
    EXPECT_EQ(std::count(cleared.begin(), cleared.end(), '\n'), 1010);
    EXPECT_TRUE(cleared.starts_with("1 1 1450 1 "));
    // The log leaves the picture as it is without one.
    ASSERT_EQ(play("click startprogrambtn\nclick postbeambtn\nclick postx0y16\npicture b.png\n").status, 0);
    EXPECT_TRUE(session::file("a.png") == session::file("b.png"));
}

TEST(play, writesPictures) {
    session s;
    ASSERT_EQ(play("picture white.bmp\nclick startprogrambtn\npicture \"the scene.PNG\"\npicture scene.bmp").status, 0);
    const std::string white = session::file("white.bmp"), scene = session::file("scene.bmp");
    EXPECT_EQ(white.size(), 54U + 581 * (897 * 3 + 1));  // 24 bits, rows in fours, no compression
    EXPECT_EQ(std::count(white.begin() + 54, white.end(), '\xFF'), 581 * 897 * 3);
    EXPECT_TRUE(scene.size() == white.size() && scene.starts_with("BM") && scene != white);
    EXPECT_TRUE(session::file("the scene.PNG").starts_with("\x89PNG"));
}

// The program's own failures: the report, status 1, and the click's record still on disk.
TEST(play, tellsFailuresOfTheProgram) {
    struct {
        const char *path, *taken, *put, *report;
    } const cases[] = {
        {"start.txt", "DISPLAYSTARTGROUP3:", "", "input past end of file: datah\\start.txt, line "},
        {"start.txt", "DISPLAYSTARTGROUP3:\n", "DISPLAYSTARTGROUP3:\nst-gone\n", "file not found: datah\\st-gone.txt"},
        {"st-post.txt", "AUTOFRAMING2:", "", "input past end of file: datah\\st-post.txt, line "},
        {"st-post.txt", "    128,", "    l28,", "type mismatch: datah\\st-post.txt, line "},
    };
    for (const auto& c : cases) {
        session s;
        const std::string path = std::string("datah/") + c.path;
        session::write(path, replaced(session::file(path), c.taken, c.put));
        const played p = play("say begun\nclick startprogrambtn\nclick postbeambtn\nclick postx0y16\nsay never\n");
        EXPECT_EQ(p.status, 1);
        EXPECT_EQ(p.out, "begun\n");
        EXPECT_TRUE(p.err.starts_with(std::string("failure ") + c.report)) << p.err;
        EXPECT_EQ(std::count(p.err.begin(), p.err.end(), '\n'), 1);
        const bool clicked = c.path == std::string("st-post.txt");
        EXPECT_EQ(session::file("designs/girders1.txt"), clicked ? post : "(none)");
    }
}

// Another program can hold a talk with it: each line's output is there before the next line is sent.
TEST(play, answersLineByLine) {
    session s;
    ASSERT_EQ(std::system("mkfifo ask"), 0);
    std::FILE* answers = ::popen(TESSALY_PLAY " - <ask", "r");
    std::FILE* questions = std::fopen("ask", "w");
    char answer[80] = "";
    for (const char* said : {"one\n", "two\n"}) {
        std::fputs((std::string("say ") + said).c_str(), questions);
        std::fflush(questions);
        ASSERT_NE(std::fgets(answer, sizeof answer, answers), nullptr);
        EXPECT_STREQ(answer, said);
    }
    std::fputs("click startprogrambtn\nlines log\nclick fillscreen\nsay drawn\n", questions);
    std::fflush(questions);
    ASSERT_NE(std::fgets(answer, sizeof answer, answers), nullptr);
    EXPECT_GT(session::file("log").size(), 1010U * 10);
    std::fclose(questions);
    EXPECT_EQ(::pclose(answers), 0);
}

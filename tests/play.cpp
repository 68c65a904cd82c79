// The player as a process: the commands of scripts, its output, and its exit status.
#include "tests/commandline.h"
#include "tests/session.h"

#include <algorithm>
#include <iomanip>

using namespace tessaly;

namespace {

// Plays a script in the session's folder; its output goes to out.txt and err.txt. Returns its exit status.
int play(const std::string& script, const std::string& arguments = "s.play") {
    session::write("s.play", script);
    return run(playcommand + " >out.txt 2>err.txt " + arguments);
}

const std::string start = "click startprogrambtn\n", layout = start + "click postbeambtn\n",
                  post = layout + "click postx0y16\n";

}  // namespace

// A script ends with its last line, an exit, or a failure of the program. A step that a user could not take is an error
// of the script, reported with its line. So are output that cannot be written and a script that cannot be read. A pipe
// in the working folder, which has no end, does not delay a record.
TEST(play, endsWithAStatusAndAReportOfOneLine) {
    const struct {
        std::string script;
        int status;
        std::string err, out = "", arguments = "s.play";
    } cases[] = {
        {"# a comment\n\n  say  two  blanks \nsay\r\n" + start + "say end", 0, "", " two  blanks \n\nend\n"},
        {start + "click exitbtn\nsay never\nno such command\n", 0, "", "", "- <s.play"},
        {"close startform\nnonsense", 0, ""},
        {start + "close vistaplan\nnonsense", 0, ""},
        {start + "click screencapbtn\ntype capbox \"abc\"\nsay named\nclick screencapenter\nsay never", 1,
         "failure \"abc\" as a file name in bmps", "named\n"},
        {"", 2, "the script none.play cannot be read", "", "none.play"},
        {"", 2, "datah, line 0: the script cannot be read", "", "datah"},
        {"", 2, "usage: play SCRIPT", "", ""},
        {"say begun\njump\nsay never", 2, "s.play, line 2: there is no command jump", "begun\n"},
        {"click exitbtn", 2, "s.play, line 1: exitbtn is in the window vistaplan, which is hidden"},
        {start + "\n# x\nclick killfilebtn", 2, "s.play, line 4: killfilebtn is hidden"},
        {post + "close layoutgirder\nclose layoutgirder", 2, "s.play, line 5: the window layoutgirder is hidden"},
        {start + "click nosuchbtn", 2, "s.play, line 2: there is no control nosuchbtn"},
        {start + "click floorlabel", 2, "s.play, line 2: floorlabel is not a button"},
        {start + "click", 2, "s.play, line 2: a name was expected"},
        {start + "click postbeambtn now", 2, "s.play, line 2: nothing more was expected"},
        {start + "click floorbtn\npick floorlist \"10\"", 2, "s.play, line 3: floorlist has no entry \"10\""},
        {start + "click floorbtn\npick floorlist 3", 2, "s.play, line 3: a text in double quotes was expected"},
        {start + "pick floorbtn \"3\"", 2, "s.play, line 2: floorbtn is not a list"},
        {start + "click floorbtn\ntype floorlist \"3\"", 2, "s.play, line 3: floorlist is not a box to type into"},
        {start + "type floor \"3", 2, "s.play, line 2: the closing double quote is missing"},
        {start + "type floor \"\\t\"", 2, "s.play, line 2: a backslash inside quotes"},
        {start + "close mainwindow", 2, "s.play, line 2: there is no window mainwindow"},
        {start + "picture", 2, "s.play, line 2: a file name was expected"},
        {start + "picture none/view.png", 2, "s.play, line 2: none/view.png"},
        {start + "lines none/x", 2, "s.play, line 2: the file none/x cannot be written"},
        {"show", 2, "s.play, line 1: standard output cannot be written", "", "s.play >/dev/full"},
        {start + "lines /dev/full\nclick fillscreen\n", 2, "s.play, line 3: the file of the drawn lines cannot"},
        {start + "record /dev/full\nclick fillscreen\n", 2, "s.play, line 3: the record of the session cannot"},
        {"record /dev/full\ntable basex 1 2\n", 2, "s.play, line 2: the record of the session cannot",
         "basex 1..2: empty empty\n"},
        {"record r.txt\n" + start, 0, ""},
        {"", 2, "standard input, line 0: the script cannot be read", "", "- <datah"},
    };
    session s;
    ASSERT_EQ(run("mkfifo designs/pipe"), 0);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.script + c.arguments);
        EXPECT_EQ(play(c.script, c.arguments), c.status);
        EXPECT_EQ(session::file("out.txt"), c.out);
        const std::string err = session::file("err.txt");
        EXPECT_EQ(err.substr(0, c.err.size()), c.err);
        EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), !c.err.empty()) << err;
    }
}

TEST(play, showsWindowsControlsAndValues) {
    session s;
    ASSERT_EQ(play(post + "type wiresolid \"\\\"a\\\\b\\r\\nc\xC3\xA9\"\nclick floorbtn\nshow\n"), 0);
    const std::string shown = '\n' + session::file("out.txt");
    for (const char* line : {"window easyviews hidden", "window layoutgirder shown", "control floorlist shown \"\"",
                             "control exitbtn shown \"Exit\"", "control perptxtx hidden \"1850\"",
                             "control wiresolid shown \"\\\"a\\\\b\\r\\nc\xC3\xA9\"", "value perpx 1849.9",
                             "value datafile \"st-post.txt\"", "value combinedcount empty"})
        EXPECT_NE(shown.find('\n' + std::string(line) + '\n'), std::string::npos) << line;
}

// Catches a log that lacks lines, faces or digits of their single-precision numbers, and one that changes the picture.
TEST(play, logsEveryLineAndSavesPictures) {
    session s;
    ASSERT_EQ(play(layout + "lines log.txt\nclick postx0y16\nlines\npicture a.bmp\nclick fillscreen\n"), 0);
    ASSERT_EQ(play(post + "picture \"its copy.BMP\"\n"), 0);
    s.start();
    s.click("postbeambtn");
    s.takelines();
    s.click("postx0y16");
    std::ostringstream log;
    for (const drawnline& l : s.takelines()) log << std::setprecision(9) << l << '\n';
    EXPECT_TRUE(session::file("log.txt") == log.str());
    EXPECT_TRUE(session::file("a.bmp") == session::file("its copy.BMP"));
}

// Another program can send lines one by one: the output of each is written before the next line is read.
TEST(play, answersLineByLine) {
    session s;
    const std::string conversation = "coproc " + playcommand + R"( -
        for script in '' 'click startprogrambtn\nlines log\nclick fillscreen\n'; do
            printf "${script}say drawn\n" >&${COPROC[1]} && read -rt 20 answer <&${COPROC[0]}
            [ "$answer" = drawn ] || exit
        done
        [ $(wc -l <log) -gt 1000 ])";
    EXPECT_EQ(run("bash -c " + shellquoted(conversation)), 0);
}

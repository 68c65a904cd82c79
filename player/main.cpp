// The program without its windows: plays a script of user actions in the working folder.
//   play SCRIPT        "-" is standard input
// The exit status is 0 if the script was played to its end or until exitbtn was clicked, 1 if the program failed, and 2
// if the script cannot be read, a line of it is wrong or no user could do what it says, or output cannot be written.
// All output is flushed after each line of the script, so that another program can send a line and wait for its output.

#include "core/controls.h"
#include "core/failure.h"
#include "picturefiles/picturefile.h"
#include "player/commands.h"
#include "windows/handlers.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>

namespace {

using namespace tessaly;

constexpr int programfailed = 1, scriptfailed = 2;  // exit statuses

void flushall() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) throw scripterror("standard output cannot be written");
    if (!playedsurface.flushlog()) throw scripterror("the file of the drawn lines cannot be written");
}

// Plays the script until it or the program ends. Sets linenumber to that of the line being played.
void playscript(std::istream& script, int& linenumber) {
    for (std::string line; !programended && std::getline(script, line);) {
        ++linenumber;
        playline(line);
        flushall();
    }
    // If standard input cannot be read, for example because it is a folder, std::cin only reports the end of input.
    if (script.bad() || std::ferror(stdin) != 0) throw scripterror("the script cannot be read");
    if (!playedsurface.endlog()) throw scripterror("the file of the drawn lines cannot be written");
}

int play(std::istream& script, const std::string& scriptname) {
    usepicturefiles();
    viewportsurface = &playedsurface;
    progresssurface = &playedstrip;
    int linenumber = 0;
    try {
        startprogram();
        playscript(script, linenumber);
        return 0;
    } catch (const scripterror& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "%s, line %d: %s\n", scriptname.c_str(), linenumber, error.what());
        return scriptfailed;
    } catch (...) {
        const std::string report = reportof([] { throw; });
        std::fflush(stdout);
        std::fprintf(stderr, "failure %s\n", report.c_str());
        return programfailed;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: play SCRIPT    (- reads the script from standard input)\n", stderr);
        return scriptfailed;
    }
    const std::string scriptname = argv[1];
    if (scriptname == "-") return play(std::cin, "standard input");
    std::ifstream script(scriptname);
    if (!script) {
        std::fprintf(stderr, "the script %s cannot be read\n", scriptname.c_str());
        return scriptfailed;
    }
    return play(script, scriptname);
}

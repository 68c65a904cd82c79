// The program without its windows: plays a script of user actions in the working folder.
//   play SCRIPT        "-" is standard input
// The exit status is 0 if the script was played to its end or to exitbtn, 1 if the program failed, and 2 if the script
// cannot be read, asks for something that no user could do, or its output cannot be written.
// All output is flushed after each line of the script, so that another program can send a line and wait for its answer.

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

constexpr int programfailed = 1, scriptfailed = 2;

void flushall() {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) throw scripterror("standard output cannot be written");
    if (!playedsurface.flushlog()) throw scripterror("the file of the drawn lines cannot be written");
}

// Plays the script until it or the program ends. Sets number to the number of the line being played.
void playscript(std::istream& script, int& number) {
    for (std::string line; !programended && std::getline(script, line);) {
        ++number;
        playline(line);
        flushall();
    }
    // The stream reports a failed read of standard input as the end of the input, for example if it is a folder.
    if (script.bad() || std::ferror(stdin) != 0) throw scripterror("the script cannot be read");
    if (!playedsurface.endlog()) throw scripterror("the file of the drawn lines cannot be written");
}

int play(std::istream& script, const std::string& name) {
    usepicturefiles();
    viewportsurface = &playedsurface;
    progresssurface = &playedstrip;
    int number = 0;
    try {
        startprogram();
        playscript(script, number);
        return 0;
    } catch (const scripterror& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "%s, line %d: %s\n", name.c_str(), number, error.what());
        return scriptfailed;
    } catch (...) {
        const std::string report = reportof([] { throw; });
        std::fflush(stdout);
        std::fprintf(stderr, "failure %s\n", report.c_str());
        return programfailed;
    }
}

}  // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::fputs("usage: play SCRIPT    (- reads the script from standard input)\n", stderr);
        return scriptfailed;
    }
    const std::string name = words[1];
    if (name == "-") return play(std::cin, "standard input");
    std::ifstream script(name);
    if (!script) {
        std::fprintf(stderr, "the script %s cannot be read\n", name.c_str());
        return scriptfailed;
    }
    return play(script, name);
}

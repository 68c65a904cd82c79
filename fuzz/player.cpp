// A script of the player, in a folder with a design file and a capture.
#include "fuzz/fuzz.h"
#include "tools/play_commands.h"

#include <sstream>

using namespace tessaly;

void play(const std::string& input) {
    viewportsurface = &playedsurface;
    write("designs/girders1.txt", "\"girder\",1,8,8,41,90,0,0,16,4,64\r\n");
    write("bmps/view.txt", "\"1850\",\"-1850\",\"830\",\"0\",\"0\",\"280\",\"0.056\",\"170\",\"-270\"\r\n");
    std::istringstream lines(input);
    try {
        for (std::string line; !programended && std::getline(lines, line);)
            if (!leavesfolder(line)) obeyline(line);
    } catch (const scripterror&) {  // the right answer to what no user could do
    }
    playedsurface.endlog();
}

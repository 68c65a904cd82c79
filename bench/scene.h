// The program, controlled by lines of a player's script, and the design files of the benchmarks.
#pragma once

#include "render/raster.h"

#include <memory>
#include <string>

namespace tessaly {

// ---- design files --------------------------------------------------------------------------------------------
// Each writes a file to designs\ if it does not exist, and returns its name. The file has n records of one
// floor, 1..10, spread over the plan. Of every ten records of a mixed file, four are girders, five panels and one a
// roof, with about ten faces each.
std::string girdersfile(int n, int onfloor = 1);
std::string panelsfile(int n, int onfloor = 1);
std::string mixedfile(int n);

// ---- methods, see BENCHMARKS.md -----------------------------------------------------------------------------
enum class method { program, nodrawing, plain, qpainter };
constexpr method allmethods[] = {method::program, method::nodrawing, method::plain, method::qpainter};
inline const char* nameof(method m) {
    constexpr const char* names[] = {"program", "program,nothing drawn", "plain", "plain,QPainter"};
    return names[static_cast<int>(m)];
}

// Starts the program, with draw mode solid and its layout windows open. The program uses the method until the object is
// destroyed.
class startedprogram {
  public:
    explicit startedprogram(method m);
    ~startedprogram();

    std::unique_ptr<surface> viewport;
};

// Replay design files with the clicks of a user.
void replaywire(const std::string& file);
void replaysolid(const std::string& file);
void replaycombined(const std::string& first, const std::string& second);

}  // namespace tessaly

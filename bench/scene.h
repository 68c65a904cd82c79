// The program, operated with lines of a player's script, and the design files of the benchmarks.
#pragma once

#include "render/raster.h"

#include <memory>
#include <string>

namespace tessaly {

// ---- design files of the scene ------------------------------------------------------------------------------
// Writes a file to designs\ if it does not exist, and returns its name. It has n records of one floor, 1..10, spread
// over the plan. Of ten records of a mixed file four are girders, five panels and one a roof, with about ten faces
// each.
std::string girdersfile(int n, int onfloor = 1);
std::string panelsfile(int n, int onfloor = 1);
std::string mixedfile(int n);

// ---- methods of drawing and working -------------------------------------------------------------------------
enum class method { program, nodrawing, plain, qpainter };
constexpr method allmethods[] = {method::program, method::nodrawing, method::plain, method::qpainter};
const char* nameof(method m);

// The program, started with the drawing mode solid and its layout windows open. Works with this method until it is
// destroyed.
class building {
  public:
    explicit building(method m);
    ~building();
    building(const building&) = delete;
    building& operator=(const building&) = delete;

    std::unique_ptr<surface> viewport;
};

// Replay design files, with the clicks of a user.
void replaywire(const std::string& file);
void replaysolid(const std::string& file);
void replaycombined(const std::string& first, const std::string& second);

}  // namespace tessaly

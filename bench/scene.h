// A scratch working folder with the program started in it, acted on as a user does.
#pragma once

#include "render/raster.h"

#include <functional>
#include <memory>
#include <string>

namespace tessaly {

// ---- design files of the scene --------------------------------------------------------------------------
// The name of a file in designs\ of n records of one floor, 1..10, their positions in turn all over the plan. A mixed
// file is part of a house: of ten records four are girders, five panels and one a roof, about ten faces each.
std::string girdersfile(int n, int onfloor = 1);
std::string panelsfile(int n, int onfloor = 1);
std::string mixedfile(int n);

// ---- ways of drawing and working ------------------------------------------------------------------------
enum class way { program, nodrawing, plain, plainnodrawing, plainqpainter, plainclippedqpainter };
constexpr way allways[] = {way::program,        way::nodrawing,     way::plain,
                           way::plainnodrawing, way::plainqpainter, way::plainclippedqpainter};
const char* nameof(way w);

// The program from its first state on, going this way until the next one is begun: started, and solid.
class building {
  public:
    explicit building(way w);
    ~building();
    building(const building&) = delete;

    std::unique_ptr<surface> viewport;
};

// Acts as a user does.
void click(const std::string& control);
void pick(const std::string& list, const std::string& item);
void replaywire(const std::string& file);
void replaysolid(const std::string& file);
void replaycombined(const std::string& first, const std::string& second);

// What an action's lines come to when they are drawn one by one.
struct drawn {
    double lines, pixels;
};
drawn drawnby(const std::function<void()>& action);

}  // namespace tessaly

// A scratch working folder with the program started in it, acted on as a user does.
#pragma once

#include "render/raster.h"

#include <string>

namespace tessaly {

// Makes the scratch folder, with copies of datah and pals of the folder that the benchmark was started in, and goes
// there; leavescene removes it.
void enterscene();
void leavescene();

// The program from its first state on, drawing on this surface, its start-up display done.
void startbuilding(surface& on);

void click(const std::string& control);
void pick(const std::string& list, const std::string& item);

// Writes n records to designs\name: girders, panels or roofs at the positions of the layouts in turn, all, or the mix
// of a house, in which four of ten are girders, five panels and one a roof.
enum class design { girders, panels, roofs, mixed };
void writedesign(const std::string& name, design what, int n);

void replaysingle(const char* button, const char* list, const std::string& name);
void replaycombined(const std::string& first, const std::string& second);

}  // namespace tessaly

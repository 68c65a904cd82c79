// What the fuzz targets share: a working folder of the process with the shipped data in it, and the program started
// anew in it for each input. A target defines play(input). A failure is the right answer to any input; whatever else
// ends play (a crash, a sanitizer's report, another exception) is a finding.
#pragma once

#include "core/channels.h"
#include "core/controls.h"
#include "core/failure.h"
#include "core/world.h"
#include "render/palette.h"
#include "render/raster.h"
#include "tools/workingfolder.h"
#include "windows/handlers.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

void play(const std::string& input);

namespace tessaly {

inline void write(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

inline std::string bytesof(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return (std::ostringstream() << in.rdbuf()).str();
}

// The process's own working folder; the start in it is to be short work.
struct scratchfolder : workingfolder {
    scratchfolder() : workingfolder(TESSALY_SOURCE_DIR) {
        for (const char* large : {"datah/st-land.txt", "datah/st-grid.txt"}) write(large, bytesof("datah/st-axes.txt"));
    }
};

// The program as it is before the click on "S T A R T", with no file of the user's.
inline void startanew() {
    static const scratchfolder folder;
    static raster viewportimage(viewportwidth, viewportheight), progressimage(progresswidth, progressheight);
    for (const char* users : {"designs", "bmps", "nonuser"})
        for (const auto& file : std::filesystem::directory_iterator(users)) std::filesystem::remove_all(file);
    viewportsurface = &viewportimage;
    progresssurface = &progressimage;
    readpicture = [](const std::string&) { return bitmap(); };
    startprogram();
}

// The view and the palette as they are behind the start, without the picture.
inline void usualview() {
    perprelx = perpx = 1850;
    perprely = perpy = -1850;
    perprelz = perpz = 550;
    focusx = focusy = 0;
    focusz = 280;
    mag = 0.56;
    vertshift = 170;
    horizshift = -270;
    perprelative = 1;
    plotstate = 2;
    palname = "tessaly";
    loadpalette();
}

// A name with this may lead out of the working folder, where nothing is the input's to touch.
inline bool leavesfolder(const std::string& text) {
    return text.find("..") != text.npos || text.find('/') != text.npos;
}

template <class procedure>
void untilitfails(procedure run) {
    try {
        run();
    } catch (const failure&) {
    }
}

}  // namespace tessaly

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    tessaly::startanew();
    tessaly::untilitfails([&] { play(std::string(bytes, bytes + size)); });
    return 0;
}

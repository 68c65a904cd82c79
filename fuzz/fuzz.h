// What the fuzz targets share: a working folder of the process with the shipped data in it, and the program started
// anew in it for each input. A target defines play(input). A failure is the right answer to any input; whatever else
// ends play (a crash, a sanitizer's report, another exception, two seconds of work) is a finding.
#pragma once

#include "core/channels.h"
#include "core/controls.h"
#include "core/failure.h"
#include "core/world.h"
#include "render/palette.h"
#include "render/raster.h"
#include "tools/workingfolder.h"
#include "windows/handlers.h"

#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

void play(const std::string& input);

namespace tessaly {

inline void write(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

// The process's own folder, in which a start is short work.
struct scratchfolder : workingfolder {
    scratchfolder() : workingfolder(TESSALY_SOURCE_DIR) {
        for (const char* large : {"datah/st-land.txt", "datah/st-grid.txt"})
            write(large, filebytes("datah\\st-axes.txt", "scene"));
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
    // Work, not time by the clock on the wall, which a busy machine lets run on.
    constexpr std::clock_t mostwork = 2 * CLOCKS_PER_SEC;
    const std::clock_t before = std::clock();
    tessaly::startanew();
    tessaly::untilitfails([&] { play(std::string(bytes, bytes + size)); });
    if (std::clock() - before > mostwork) throw std::runtime_error("an input was more than 2 s of work");
    return 0;
}

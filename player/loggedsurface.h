// The surfaces of the player: images in memory that can also write each drawn line to a log file and count it.
#pragma once

#include "player/checksum.h"
#include "render/raster.h"

#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

namespace tessaly {

// The number of lines drawn, the checksum of their ends and colours, and the picture set as the background.
struct linetally {
    long lines = 0;
    checksum sum;
    std::string picture;

    std::string text() const { return std::to_string(lines) + ' ' + sum.shorttext(); }
};

class loggedsurface : public surface {
  public:
    loggedsurface(int width, int height) : image(width, height) {}

    // Writes each line drawn from here on to this file. Returns false if the file cannot be written.
    bool startlog(const std::string& path);
    // Both return false if a line could not be written. Without a log they do nothing and return true.
    bool flushlog();
    bool endlog();

    // starttally starts counting the lines drawn; taketally returns the tally and starts a new one.
    void starttally() { tally.emplace(); }
    linetally taketally() { return std::exchange(*tally, {}); }

    void line(float x1, float y1, float x2, float y2, colour c) override;
    void drawbetween(const facecorners& f, int n, colour c) override;
    void save(const std::string& path) override { image.save(path); }
    void setpicture(const std::string& path) override;

    raster image;

  private:
    bool needseachline() const { return log != nullptr || tally; }

    struct filecloser {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, filecloser> log;
    std::optional<linetally> tally;
};

// The surfaces on which scripts draw: the building and the progress strip of a replay. The player sets viewportsurface
// and progresssurface to them.
extern loggedsurface playedsurface, playedstrip;

}  // namespace tessaly

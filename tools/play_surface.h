// The player's picture of viewport: an image in memory that also writes each drawn line to a file while asked to.
#pragma once

#include "render/raster.h"

#include <cstdio>
#include <memory>

namespace tessaly {

class loggedsurface : public surface {
  public:
    loggedsurface(int width, int height) : image(width, height) {}

    // From here on each line goes to this file as well; false where it cannot be written.
    bool startlog(const std::string& path);
    void endlog() { log.reset(); }
    bool flushlog();  // false where the disk does not take it

    void line(float x1, float y1, float x2, float y2, colour c) override;
    void wash(int x1, int x2, int y1, int y2, colour c) override;
    void web(const facecorners& f, int n, colour c) override;
    void save(const std::string& path) override { image.save(path); }
    void setpicture(const std::string& path) override { image.setpicture(path); }

    raster image;

  private:
    struct closing {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, closing> log;
};

}  // namespace tessaly

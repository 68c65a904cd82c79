// While lines are logged or counted, drawbetween draws them one by one. The image is the same.

#include "player/loggedsurface.h"

#include <charconv>

namespace tessaly {

loggedsurface playedsurface(viewportwidth, viewportheight), playedstrip(progresswidth, progressheight);

namespace {

// Writes a coordinate with nine significant digits, which distinguish all single-precision numbers, and a blank.
char* writecoordinate(char* at, char* end, float coordinate) {
    at = std::to_chars(at, end, static_cast<double>(coordinate), std::chars_format::general, 9).ptr;
    *at = ' ';
    return at + 1;
}

}  // namespace

bool loggedsurface::startlog(const std::string& path) {
    log.reset(std::fopen(path.c_str(), "wb"));
    return log != nullptr;
}

// Only ferror remembers a failed write: a later flush has nothing left to write and succeeds.
bool loggedsurface::flushlog() {
    return log == nullptr || (std::fflush(log.get()) == 0 && std::ferror(log.get()) == 0);
}

bool loggedsurface::endlog() {
    const bool written = flushlog();
    return (log == nullptr || std::fclose(log.release()) == 0) && written;
}

void loggedsurface::line(float x1, float y1, float x2, float y2, colour c) {
    image.line(x1, y1, x2, y2, c);
    if (tally) {
        ++tally->lines;
        for (const float coordinate : {x1, y1, x2, y2}) tally->sum.add(coordinate);
        tally->sum.add(std::uint64_t{c.red} << 16 | std::uint64_t{c.green} << 8 | c.blue);
    }
    if (log == nullptr) return;
    char row[160];
    char* at = row;
    for (const float coordinate : {x1, y1, x2, y2}) at = writecoordinate(at, row + sizeof row, coordinate);
    for (const int component : {c.red, c.green, c.blue}) {
        at = std::to_chars(at, row + sizeof row, component).ptr;
        *at++ = ' ';
    }
    at[-1] = '\n';
    std::fwrite(row, 1, static_cast<std::size_t>(at - row), log.get());
}

void loggedsurface::drawbetween(const facecorners& f, int n, colour c) {
    if (needseachline())
        surface::drawbetween(f, n, c);
    else
        image.drawbetween(f, n, c);
}

void loggedsurface::setpicture(const std::string& path) {
    image.setpicture(path);
    if (tally) tally->picture = path;
}

}  // namespace tessaly

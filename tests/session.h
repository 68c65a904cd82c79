// A temporary working folder with the program started in it, and a surface that stores every drawn line. Tests play
// lines of scripts, or set the tables themselves and call one procedure.
#pragma once

#include "core/controls.h"
#include "core/failure.h"
#include "core/textfiles.h"
#include "core/value.h"
#include "core/world.h"
#include "player/checksum.h"
#include "player/commands.h"
#include "player/programstate.h"
#include "player/tablechanges.h"
#include "render/raster.h"
#include "tools/workingfolder.h"
#include "windows/handlers.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessaly {

struct drawnline {
    float x1, y1, x2, y2;
    colour c;
};

inline std::ostream& operator<<(std::ostream& out, const drawnline& l) {
    return out << l.x1 << ' ' << l.y1 << ' ' << l.x2 << ' ' << l.y2 << ' ' << int{l.c.red} << ' ' << int{l.c.green}
               << ' ' << int{l.c.blue};
}

class linestore : public surface {
  public:
    void line(float x1, float y1, float x2, float y2, colour c) override { drawn.push_back({x1, y1, x2, y2, c}); }
    void save(const std::string&) override {}
    void setpicture(const std::string&) override {}
    std::vector<drawnline> drawn;
};

// For a session without shipped data: the test writes its files.
inline const std::filesystem::path inownfolder;

class session {
  public:
    // Creates a working folder with the data files of another folder.
    explicit session(const std::filesystem::path& data = TESSALY_SOURCE_DIR) : folder(data) {
        viewportsurface = &viewport;
        progresssurface = &progress;
        startprogram();
    }
    ~session() { resetchannels(); }
    session(const session&) = delete;

    // ---- actions of a user; using a hidden control is an error of the test ----
    void start() { click("startprogrambtn"); }
    void click(const std::string& name) { playline("click " + name); }

    // ---- results ----
    std::vector<drawnline> takelines() { return std::exchange(viewport.drawn, {}); }
    // Returns the bytes of a file in the working folder; "(none)" if it does not exist.
    static std::string file(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return in ? (std::ostringstream() << in.rdbuf()).str() : "(none)";
    }
    static void write(const std::string& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }

    linestore viewport, progress;

  private:
    workingfolder folder;
};

// Returns everything that later steps depend on, line by line: each scalar, and checksums of each table and the
// picture.
inline std::string worldtext(const raster& image) {
    std::string all = tablesums();
    for (const scalar& s : scalars()) all += s.name + ' ' + statetext(*s.variable) + '\n';
    checksum pixels;
    for (const std::uint32_t pixel : image.pixels) pixels.addword(pixel);
    return all + "picture " + pixels.text() + '\n';
}

// Returns the values with blanks between them, so that one comparison of several shows which one differs.
template <class... values>
std::string joined(const values&... all) {
    std::string text;
    ((text += (text.empty() ? "" : " ") + statetext(value(all))), ...);
    return text;
}

// Writes a value in messages of failed tests.
inline void PrintTo(const value& v, std::ostream* out) { *out << statetext(v); }

// Returns the failure with which a procedure ends; nothing if it succeeds.
template <class procedure>
std::optional<failure> failureof(procedure run) {
    try {
        run();
    } catch (const failure& f) {
        return f;
    }
    return std::nullopt;
}

inline void expectfailure(const std::optional<failure>& f, failurekind kind, const std::string& report) {
    ASSERT_TRUE(f) << report;
    EXPECT_EQ(f->kind, kind) << f->what();
    EXPECT_NE(std::string(f->what()).find(report), std::string::npos) << f->what() << "\nexpected: " << report;
}

// Returns a text with its first occurrence of old, which must exist, replaced by fresh.
inline std::string replaced(std::string text, const std::string& old, const std::string& fresh) {
    const std::size_t at = text.find(old);
    if (at == std::string::npos) throw std::logic_error("there is no " + old);
    return text.replace(at, old.size(), fresh);
}

// Returns the text that many times.
inline std::string repeated(std::size_t times, const std::string& text) {
    std::string all;
    for (; times > 0; --times) all += text;
    return all;
}

// An element file section by section. A section that a test does not set has only its end row.
struct elementtext {
    std::string wirecolours = "1,2,3,4,5,6,7", points = "", lines[5] = {}, cubes400 = "", cubes600 = "", planes = "",
                framing1 = "", framing2 = "", script = "TRAN\nSTOP\n";

    operator std::string() const {
        static const std::string cubeend = "9999,0,0,0,0,0,0,0,0\n", framingend = "0,9999\n";
        std::string text = "A test's element\nWIRECOLORS:\n" + wirecolours + "\nSTANDARD:\n" + points + "9999,0,0,0\n";
        for (int g = 0; g < 5; ++g) text += "LINEG" + std::to_string(g + 1) + ":\n" + lines[g] + "9999,9999\n";
        return text + "AUTOCUBE400:\n" + cubes400 + cubeend + "AUTOCUBE600:\n" + cubes600 + cubeend + "AUTOPLANE:\n" +
               planes + "9999,0,0,0,0,0,0\nAUTOFRAMING1:\n" + framing1 + framingend + "AUTOFRAMING2:\n" + framing2 +
               framingend + script;
    }
};

// A different drawing colour for each palette index up to 120.
inline colour testcolour(int k) {
    return {static_cast<std::uint8_t>(k), static_cast<std::uint8_t>(2 * k), static_cast<std::uint8_t>(255 - k)};
}

// Sets a view with the eye at (x, y, z) relative to the focus, as after the start, and a palette of test colours.
inline void setview(double x, double y, double z, double magnification = 0.56) {
    perprelx = perpx = x;
    perprely = perpy = y;
    perprelz = perpz = z;
    focusx = focusy = focusz = 0;
    mag = magnification;
    vertshift = horizshift = 0;
    perprelative = 1;
    plotstate = 2;
    viewprompt = "PROMPT";
    for (int k = 1; k <= 120; ++k) {
        palred.set(k, testcolour(k).red);
        palgreen.set(k, testcolour(k).green);
        palblue.set(k, testcolour(k).blue);
    }
}

}  // namespace tessaly

// Makes the pictures of the ten element buttons and the three snip buttons: the very elements, drawn solid by the
// engine from the element files at the size at which the buttons show them, so that button and result look alike and
// every machine makes the same pictures. makebuttons WORKINGFOLDER FOLDER draws with the data of the working folder and
// writes FOLDER/<control>.png, and <control>@2x.png for screens of double density.

#include "building/layouts.h"
#include "core/controls.h"
#include "core/world.h"
#include "picturefiles/picturefile.h"
#include "render/projector.h"
#include "render/raster.h"
#include "tools/generator.h"
#include "windows/handlers.h"

#include <QImage>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

namespace {

struct viewpoint {
    double eyex, eyey, eyez;        // model units, relative to the focus
    double focusx, focusy, focusz;  // model units; it stands in the middle of what is drawn
    double magnification;           // as in the magnification box, for a picture of single density
};

// From the side on which the default view sees a panel's face; a panel's two ends straight from the front.
constexpr viewpoint panelview{260, -900, 210, 3, -104, 62, 0.0425};
constexpr viewpoint frameview{800, -800, 420, 0, 0, 56, 0.0255};
constexpr viewpoint roofview{800, -800, 620, 0, 0, 127, 0.0379};
constexpr viewpoint leftend{0, -900, 0, -91.5, -104, 105, 0.052};
constexpr viewpoint rightend{0, -900, 0, 93.5, -104, 105, 0.052};

// An upright strip of a picture, drawn from a viewpoint of its own.
struct strip {
    viewpoint from;
    int left, width;  // pixels of the picture
};

// How a picture is drawn: what a button of single density shows within its rim, and what is drawn for each pixel.
struct form {
    int width, height;  // pixels
    int dots;           // for a pixel, each way: slanting edges want some, upright ones one
    std::vector<strip> strips;
};

const form panelform{101, 54, 4, {{panelview, 0, 101}}};
const form frameform{101, 54, 4, {{frameview, 0, 101}}};
const form roofform{101, 54, 4, {{roofview, 0, 101}}};
const form endsform{24, 24, 1, {{leftend, 0, 12}, {rightend, 12, 12}}};  // what is cut is a third of its end

struct picture {
    const char* button;                  // of the main window or the panel layout
    const char* element;                 // button that chooses the element
    const char* snip;                    // text of panelsnipper, "" for a whole element
    std::vector<const char*> positions;  // farthest first
    const form& as;
};

const std::vector<picture>& pictures() {
    static const std::vector<const char*> wall{"pan0x384y576"};
    static const std::vector<const char*> frame{"postx384y784", "beamx384y592",  "vbeamx400y784", "postx384y592",
                                                "postx576y784", "vbeamx400y592", "beamx576y592",  "postx576y592"};
    static const std::vector<picture> all{
        {"orange1btn", "orange1btn", "", wall, panelform},
        {"orange2btn", "orange2btn", "", wall, panelform},
        {"orange3btn", "orange3btn", "", wall, panelform},
        {"yellow1btn", "yellow1btn", "", wall, panelform},
        {"yellow2btn", "yellow2btn", "", wall, panelform},
        {"yellow3btn", "yellow3btn", "", wall, panelform},
        {"door2btn", "door2btn", "", wall, panelform},
        {"door4btn", "door4btn", "", wall, panelform},
        {"postbeambtn", "postbeambtn", "", frame, frameform},
        {"roofbtn", "roofbtn", "", {"roofx384y576"}, roofform},
        {"snipleftbtn", "orange1btn", "snip left side", wall, endsform},
        {"sniprighbtn", "orange1btn", "snip right side", wall, endsform},
        {"snipbothbtn", "orange1btn", "snip both sides", wall, endsform},
    };
    return all;
}

// The view on the middle of the image; zoom is how many of its dots make a pixel of single density.
void look(const viewpoint& from, const raster& image, int zoom) {
    perprelx = from.eyex;
    perprely = from.eyey;
    perprelz = from.eyez;
    focusx = from.focusx;
    focusy = from.focusy;
    focusz = from.focusz;
    mag = 10 * from.magnification * zoom;
    vertshift = 490 - image.height() / 2;
    horizshift = image.width() / 2 - 730;
}

void click(const char* name) { clickcontrol(*findcontrol(name)); }

// Draws the elements of a picture on an image whose untouched dots are 0; a snipped panel stands before the wires of
// the full one.
void drawelements(const picture& p, const viewpoint& from, raster& image, int zoom) {
    std::fill_n(image.pixels(), image.width() * image.height(), 0U);
    viewportsurface = &image;
    look(from, image, zoom);
    click(p.element);
    if (*p.snip != '\0') {
        wiresolid.text = "wireframe";
        click(p.positions.front());
        wiresolid.text = "solid";
        panelsnipper.text = p.snip;
    }
    for (const char* position : p.positions) click(position);
}

// One pixel for a square of dots: as opaque as it is touched, in the mean colour of what is. Whole numbers throughout,
// so that every machine comes to the same picture.
QRgb meanpixel(const raster& image, int left, int top, int dots) {
    int touched = 0, red = 0, green = 0, blue = 0;
    for (int y = top; y < top + dots; ++y)
        for (int x = left; x < left + dots; ++x) {
            const QRgb dot = image.pixels()[y * image.width() + x];
            touched += dot != 0;
            red += qRed(dot);
            green += qGreen(dot);
            blue += qBlue(dot);
        }
    if (touched == 0) return 0;
    const auto mean = [](int sum, int of) { return (sum + of / 2) / of; };
    return qRgba(mean(red, touched), mean(green, touched), mean(blue, touched), mean(255 * touched, dots * dots));
}

// The picture for a screen on which so many pixels, each way, make one of the design grid.
QImage made(const picture& p, int density) {
    const int dots = p.as.dots;
    QImage result(p.as.width * density, p.as.height * density, QImage::Format_ARGB32);
    result.fill(0);
    for (const strip& s : p.as.strips) {
        raster image(s.width * density * dots, result.height() * dots);
        drawelements(p, s.from, image, density * dots);
        for (int y = 0; y < result.height(); ++y)
            for (int x = 0; x < s.width * density; ++x)
                result.setPixel(s.left * density + x, y, meanpixel(image, x * dots, y * dots, dots));
    }
    return result;
}

void makeall(const std::filesystem::path& folder) {
    raster image(viewportwidth, viewportheight), progress(progresswidth, progressheight);
    viewportsurface = &image;
    progresssurface = &progress;
    startprogram();
    click("startprogrambtn");
    writefilebox.text = "off";
    for (const picture& p : pictures())
        for (const auto& [density, ending] : {std::pair{1, ".png"}, std::pair{2, "@2x.png"}})
            saveimage(made(p, density), folder / (p.button + std::string(ending)));
}

}  // namespace

}  // namespace tessaly

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: makebuttons WORKINGFOLDER FOLDER\n", stderr);
        return 2;
    }
    return tessaly::generate("makebuttons", [argv] {
        const std::filesystem::path folder = std::filesystem::absolute(argv[2]);
        std::filesystem::current_path(argv[1]);
        tessaly::makeall(folder);
    });
}

// Generates the pictures of the ten element buttons and the three snip buttons. The engine draws the elements solid,
// from their element files, at the size of the buttons. So a button looks like its element, and every machine generates
// the same pictures. makebuttons WORKINGFOLDER FOLDER draws with the data of the working folder. It writes
// FOLDER/<control>.png, and FOLDER/<control>@2x.png for screens of double density.

#include "building/layouts.h"
#include "core/controls.h"
#include "core/elementtypes.h"
#include "core/world.h"
#include "picturefiles/picturefile.h"
#include "render/projector.h"
#include "render/raster.h"
#include "tools/generator.h"
#include "windows/handlers.h"

#include <QImage>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

namespace {

struct viewpoint {
    double eyex, eyey, eyez;        // model units, relative to the focus
    double focusx, focusy, focusz;  // model units; shown in the middle of the strip
    double magnification;           // as in its box, for a picture of single density
};

// The ends of a panel are seen from the front, everything else at an angle from above.
constexpr viewpoint panelview{260, -900, 210, 3, -104, 62, 0.0425};
constexpr viewpoint frameview{800, -800, 420, 0, 0, 56, 0.0255};
constexpr viewpoint roofview{800, -800, 620, 0, 0, 127, 0.0379};
constexpr viewpoint leftend{0, -900, 0, -91.5, -104, 105, 0.052};
constexpr viewpoint rightend{0, -900, 0, 93.5, -104, 105, 0.052};

// A vertical strip of a picture and its viewpoint.
struct strip {
    viewpoint from;
    int left, width;  // pixels of the picture
};

// The size of a picture for single density, equal to the interior of its button, and how it is drawn.
struct pictureformat {
    int width, height;  // pixels
    int dots;           // per pixel in each direction, to smooth slanting edges; 1 if no edge slants
    std::vector<strip> strips;
};

const pictureformat panelformat{101, 54, 4, {{panelview, 0, 101}}};
const pictureformat frameformat{101, 54, 4, {{frameview, 0, 101}}};
const pictureformat roofformat{101, 54, 4, {{roofview, 0, 101}}};
const pictureformat endsformat{24, 24, 1, {{leftend, 0, 12}, {rightend, 12, 12}}};

struct picture {
    const control* button;               // shows the picture
    const control* element;              // chooses the element
    const char* snip;                    // text of panelsnipper, "" for a complete element
    std::vector<const char*> positions;  // farthest first
    const pictureformat& format;
};

std::vector<picture> allpictures() {
    const std::vector<const char*> wall{"pan0x384y576"};
    const std::vector<const char*> frame{"postx384y784", "beamx384y592",  "vbeamx400y784", "postx384y592",
                                         "postx576y784", "vbeamx400y592", "beamx576y592",  "postx576y592"};
    std::vector<picture> all{{&postbeambtn, &postbeambtn, "", frame, frameformat},
                             {&roofbtn, &roofbtn, "", {"roofx384y576"}, roofformat}};
    for (const paneltype& t : paneltypes) all.push_back({t.button, t.button, "", wall, panelformat});
    for (const sniptype& s : sniptypes)
        if (s.button) all.push_back({s.button, &orange1btn, s.text, wall, endsformat});
    return all;
}

// Sets a view with the focus in the middle of the image. zoom: dots per pixel of single density.
void setview(const viewpoint& from, const raster& image, int zoom) {
    perprelx = from.eyex;
    perprely = from.eyey;
    perprelz = from.eyez;
    focusx = from.focusx;
    focusy = from.focusy;
    focusz = from.focusz;
    mag = 10 * from.magnification * zoom;
    vertshift = 490 - image.height / 2;
    horizshift = image.width / 2 - 730;
}

void click(const std::string& name) { clickcontrol(*findcontrol(name)); }

// Draws the elements of a picture on an image, and leaves all other dots 0. Draws a snipped panel over the wires of the
// full one.
void drawelements(const picture& p, const viewpoint& from, raster& image, int zoom) {
    std::fill(image.pixels.begin(), image.pixels.end(), 0U);
    viewportsurface = &image;
    setview(from, image, zoom);
    click(p.element->name);
    if (*p.snip != '\0') {
        wiresolid.text = "wireframe";
        click(p.positions.front());
        wiresolid.text = "solid";
        panelsnipper.text = p.snip;
    }
    for (const char* position : p.positions) click(position);
}

// Returns the pixel for a square of dots: the mean colour of the drawn dots, with their share of the square as its
// opacity. Integer arithmetic gives the same result on every machine.
QRgb meanpixel(const raster& image, int left, int top, int dots) {
    int drawn = 0, red = 0, green = 0, blue = 0;
    for (int y = top; y < top + dots; ++y)
        for (int x = left; x < left + dots; ++x) {
            const QRgb dot = image.pixels.data()[y * image.width + x];
            drawn += dot != 0;
            red += qRed(dot);
            green += qGreen(dot);
            blue += qBlue(dot);
        }
    if (drawn == 0) return 0;
    const auto mean = [](int sum, int count) { return (sum + count / 2) / count; };
    return qRgba(mean(red, drawn), mean(green, drawn), mean(blue, drawn), mean(255 * drawn, dots * dots));
}

// Draws a picture for a screen of this density, the number of its pixels per pixel of the design grid in each
// direction.
QImage drawpicture(const picture& p, int density) {
    const int dots = p.format.dots;
    QImage result(p.format.width * density, p.format.height * density, QImage::Format_ARGB32);
    result.fill(0);
    for (const strip& s : p.format.strips) {
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
    for (const picture& p : allpictures())
        for (const auto& [density, ending] : {std::pair{1, ".png"}, std::pair{2, "@2x.png"}})
            saveimage(drawpicture(p, density), folder / (p.button->name + ending));
}

}  // namespace

}  // namespace tessaly

int main(int argc, char** argv) {
    return tessaly::rungenerator(argc, "makebuttons WORKINGFOLDER FOLDER", [argv] {
        const std::filesystem::path folder = std::filesystem::absolute(argv[2]);
        std::filesystem::current_path(argv[1]);
        tessaly::makeall(folder);
    });
}

// Makes the pictures of the ten element buttons and the three snip buttons: the very elements, drawn solid by the
// engine from the element files and cut out of its image, so that button and result look alike. makebuttons
// WORKINGFOLDER FOLDER draws with the data of the working folder and writes FOLDER/<control>.png.

#include "building/layouts.h"
#include "core/controls.h"
#include "core/world.h"
#include "render/projector.h"
#include "render/raster.h"
#include "windows/handlers.h"
#include "windows/qt/picturefiles/picturefile.h"

#include <QImage>
#include <QPainter>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace tessaly {

namespace {

struct viewpoint {
    double eyex, eyey, eyez;        // model units, relative to the focus
    double focusx, focusy, focusz;  // model units
    double magnification;           // as in the magnification box
};

// From the side on which the default view sees a panel's face, near enough to fill the picture.
constexpr viewpoint panelview{260, -900, 210, 0, -104, 62, 0.28};
constexpr viewpoint frameview{800, -800, 420, 0, 0, 70, 0.23};
constexpr viewpoint roofview{800, -800, 620, 0, 0, 118, 0.23};

struct picture {
    const char* button;                  // of the main window or the panel layout
    const char* element;                 // button that chooses the element
    const char* snip;                    // text of panelsnipper, "" for other elements
    std::vector<const char*> positions;  // farthest first
    viewpoint from;
    int width, height;  // pixels
};

const std::vector<picture>& pictures() {
    static const std::vector<const char*> wall{"pan0x384y576"};
    static const std::vector<const char*> frame{"postx384y784", "beamx384y592",  "vbeamx400y784", "postx384y592",
                                                "postx576y784", "vbeamx400y592", "beamx576y592",  "postx576y592"};
    constexpr int width = 2 * 99, height = 2 * 52, snipwidth = 2 * 37, snipheight = 2 * 27;
    static const std::vector<picture> all{
        {"orange1btn", "orange1btn", "Full panel", wall, panelview, width, height},
        {"orange2btn", "orange2btn", "Full panel", wall, panelview, width, height},
        {"orange3btn", "orange3btn", "Full panel", wall, panelview, width, height},
        {"yellow1btn", "yellow1btn", "Full panel", wall, panelview, width, height},
        {"yellow2btn", "yellow2btn", "Full panel", wall, panelview, width, height},
        {"yellow3btn", "yellow3btn", "Full panel", wall, panelview, width, height},
        {"door2btn", "door2btn", "Full panel", wall, panelview, width, height},
        {"door4btn", "door4btn", "Full panel", wall, panelview, width, height},
        {"postbeambtn", "postbeambtn", "", frame, frameview, width, height},
        {"roofbtn", "roofbtn", "", {"roofx384y576"}, roofview, width, height},
        {"snipleftbtn", "orange1btn", "snip left side", wall, panelview, snipwidth, snipheight},
        {"sniprighbtn", "orange1btn", "snip right side", wall, panelview, snipwidth, snipheight},
        {"snipbothbtn", "orange1btn", "snip both sides", wall, panelview, snipwidth, snipheight},
    };
    return all;
}

void look(const viewpoint& from) {
    perprelx = from.eyex;
    perprely = from.eyey;
    perprelz = from.eyez;
    focusx = from.focusx;
    focusy = from.focusy;
    focusz = from.focusz;
    mag = 10 * from.magnification;
    vertshift = 490 - 290;
    horizshift = 448 - 730;
}

void click(const char* name) { clickcontrol(*findcontrol(name)); }

// The raster's image with the background colour transparent, cut to what was drawn.
QImage cutout(const raster& from) {
    const colour back = backgroundcolour();
    QImage image(from.width(), from.height(), QImage::Format_ARGB32_Premultiplied);
    QRect drawn;
    image.fill(Qt::transparent);
    for (int y = 1; y < from.height(); ++y)  // row 0 and column 0 lie outside every clearing of the picture
        for (int x = 1; x < from.width(); ++x) {
            const colour c = from.at(x, y);
            image.setPixel(x, y, c == back ? 0 : qRgb(c.red, c.green, c.blue));
            if (!(c == back)) drawn |= QRect(x, y, 1, 1);
        }
    return image.copy(drawn);
}

// Puts the outline of the full panel, as outline holds it, behind the snipped one, strong enough for a small picture.
void addoutline(QImage& snipped, const QImage& outline) {
    constexpr int thick = 8;  // pixels of the picture before it is scaled down
    QPainter painter(&snipped);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    for (int y = 0; y < outline.height(); ++y)
        for (int x = 0; x < outline.width(); ++x)
            if (qAlpha(outline.pixel(x, y)) != 0)
                painter.fillRect(x - thick / 2, y - thick / 2, thick, thick, QColor(70, 70, 70));
}

// Draws the elements of a picture; a snipped panel stands before the outline of the full one.
QImage drawelements(const picture& p, raster& image) {
    click("fillscreen");
    look(p.from);
    click(p.element);
    const bool snipped = *p.snip != '\0' && std::string(p.snip) != "Full panel";
    QImage outline;
    if (snipped) {
        wiresolid.text = "wireframe";
        click(p.positions.front());
        wiresolid.text = "solid";
        outline = cutout(image);
    }
    if (*p.snip != '\0') panelsnipper.text = p.snip;
    for (const char* position : p.positions) click(position);
    QImage drawn = cutout(image);
    if (snipped) addoutline(drawn, outline);
    return drawn;
}

// Scaled into the middle of a picture of the button's size.
QImage fitted(const QImage& drawn, const picture& p) {
    QImage result(p.width, p.height, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    const QImage small = drawn.scaled(p.width, p.height, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&result);
    painter.drawImage((p.width - small.width()) / 2, (p.height - small.height()) / 2, small);
    return result;
}

void makeall(const std::string& folder) {
    raster image(897, 581), strip(17, 705);
    viewportsurface = &image;
    progresssurface = &strip;
    startprogram();
    click("startprogrambtn");
    writefilebox.text = "off";
    for (const picture& p : pictures()) {
        const QImage made = fitted(drawelements(p, image), p);
        if (!made.save(QString::fromStdString(folder + "/" + p.button + ".png"))) std::exit(1);
    }
}

}  // namespace

}  // namespace tessaly

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: makebuttons WORKINGFOLDER FOLDER\n", stderr);
        return 2;
    }
    try {
        const std::string folder = std::filesystem::absolute(argv[2]).string();
        std::filesystem::current_path(argv[1]);
        tessaly::makeall(folder);
    } catch (const std::exception& failed) {
        std::fprintf(stderr, "makebuttons: %s\n", failed.what());
        return 1;
    }
    return 0;
}

// Makes the pictures of the windows: the five navigation pictures and the opening picture of the instructions window,
// cut out of the real main window so that they cannot go stale, and the window pictures of the guide and the README.
// makewindowpictures ROOT HELPFOLDER DOCFOLDER works in a scratch folder with the data and samples of ROOT.

#include "building/layouts.h"
#include "core/controls.h"
#include "core/world.h"
#include "picturefiles/picturefile.h"
#include "tools/picturedescription.h"
#include "tools/workingfolder.h"
#include "windows/qt/binding.h"
#include "windows/qt/canvas.h"
#include "windows/qt/decoration.h"
#include "windows/qt/style.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <numeric>
#include <set>
#include <string>

namespace tessaly {

namespace {

namespace fs = std::filesystem;

// A region of the main window, in twips, and the help button that shows it.
struct region {
    const char* button;
    twips bounds;
};
constexpr region regions[] = {
    // clang-format off
    {"elementsbtn",    {    0,    0, 1755, 10605}},
    {"filereaderbtn",  { 1830, 8730, 2595,  1875}},
    {"displaybtn",     { 6030, 8730, 1065,  1875}},
    {"viewcontrolbtn", { 7110, 8730, 6465,  1875}},
    {"capturesbtn",    {13560, 8730, 1755,  1875}},
    // clang-format on
};

void click(const char* name) {
    runevent([name] { clickcontrol(*findcontrol(name)); });
}

void pick(const char* list, const std::string& item) {
    control& c = *findcontrol(list);
    const auto found = std::find(c.items.begin(), c.items.end(), item);
    runevent([&] { pickitem(c, static_cast<int>(found - c.items.begin())); });
}

void replaysolid(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        click("autosolidsingle");
        pick("autofile5", std::string(name) + ".txt");
    }
}

// Whether a control's middle lies in a region of its window: neighbours overlap the rim.
bool liesin(const twips& region, const control& c) {
    const int x = c.bounds.left + c.bounds.width / 2 - region.left, y = c.bounds.top + c.bounds.height / 2 - region.top;
    return x >= 0 && x < region.width && y >= 0 && y < region.height;
}

twips wholeof(const window& w) { return {0, 0, w.widthtwips, w.heighttwips}; }

// The inside of a window at its designed size, sharp at times its pixels.
QImage shot(const window& w, int times = 1) {
    const QSize size = frameof(w)->designedsize();
    QImage image(size * times, QImage::Format_RGB32);
    image.setDevicePixelRatio(times);
    frameof(w)->plan()->render(&image, {}, QRegion(QRect({0, 0}, size)));
    image.setDevicePixelRatio(1);
    return image;
}

// The controls in a region of a window, whatever their order, and the engine's picture pixel by pixel.
std::string wordsof(const window& w, const twips& region) {
    std::set<std::string> lines;
    for (const control* c : w.controls)
        if (c->shown && liesin(region, *c)) lines.insert(wordsof(*c));
    std::string words = std::accumulate(lines.begin(), lines.end(), std::string());
    if (&w != &vistaplan || !liesin(region, viewport)) return words;
    checksum pixels;
    for (int i = 0; i < viewportimage().width() * viewportimage().height(); ++i)
        pixels.add(std::uint64_t{viewportimage().pixels()[i]});
    return words + "on viewport " + pixels.text() + '\n';
}

// The plan of a layout window, with a frame around each bounds that the guide's clicks press on it.
QImage markedplan(const window& w, const fs::path& guide) {
    QImage image = shot(w);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 60, 220), 3));
    std::ifstream clicks(guide);
    for (std::string word; clicks >> word;) {
        const control* c = findcontrol(word);
        if (c && c->in == &w && c->elementnumber)
            painter.drawRoundedRect(QRectF(widgetof(*c)->geometry()).adjusted(-1.5, -1.5, 1.5, 1.5), 3, 3);
    }
    return image;
}

// Writes a picture of a region of a window.
void keep(QImage image, const window& w, const twips& region, const fs::path& folder, const char* name) {
    keepwords(image, wordsof(w, region));
    if (!image.save(QString::fromStdString((folder / (std::string(name) + ".png")).string()))) std::exit(1);
}

void keepwindow(const window& w, const fs::path& folder, const char* name) {
    keep(shot(w), w, wholeof(w), folder, name);
}

void keepplan(const window& w, const fs::path& guide, const fs::path& folder, const char* name) {
    keep(markedplan(w, guide), w, wholeof(w), folder, name);
}

// What a help button has room for, in pixels: as much of it as its window shows, within its rim.
QSize roomofbutton(const char* name) {
    constexpr int rim = 2;
    const twips& bounds = findcontrol(name)->bounds;
    const int high = std::min(bounds.height, instructions.heighttwips - bounds.top);
    return {inpixels(bounds.width) - 2 * rim, inpixels(high) - 2 * rim};
}

// Leaves on the main window only the controls of a region.
void showonly(const twips& bounds) {
    for (const control* c : vistaplan.controls) widgetof(*c)->setVisible(c->shown && liesin(bounds, *c));
}

// A region on the main window's grey, which fills the button that shows it.
void makehelppictures(const fs::path& folder) {
    constexpr int sharp = 2;
    const auto inimage = [](int twips) { return sharp * twips / twipsperpixel; };
    for (const region& r : regions) {
        QImage filled(roomofbutton(r.button) * sharp, QImage::Format_RGB32);
        filled.fill(screencolour(vistaplan.back));
        const QSize shown =
            QSize(inimage(r.bounds.width), inimage(r.bounds.height)).scaled(filled.size(), Qt::KeepAspectRatio);
        showonly(r.bounds);
        const QImage cut =
            shot(vistaplan, sharp)
                .copy(inimage(r.bounds.left), inimage(r.bounds.top), inimage(r.bounds.width), inimage(r.bounds.height));
        QPainter(&filled).drawImage((filled.width() - shown.width()) / 2, 0,
                                    cut.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        keep(filled, vistaplan, r.bounds, folder, r.button);
    }
    showonly(wholeof(vistaplan));
}

// The view from which the whole tower is seen; it is taken by SET, as a user would.
void looktower() {
    struct figure {
        control& box;
        const char* text;
    };
    const figure figures[] = {{perptxtx, "1850"}, {perptxty, "-1850"}, {perptxtz, "1230"},
                              {focustxtx, "1"},   {focustxty, "1"},    {focustxtz, "600"},
                              {magtxt, ".036"},   {verttxt, "200"},    {horiztxt, "-270"}};
    for (const figure& f : figures) f.box.text = f.text;
    click("cventerbtn");
    click("groupbtn");
}

void makeall(const fs::path& guide, const fs::path& help, const fs::path& documents) {
    openwindows(decoratewindow);
    click("startprogrambtn");
    keepwindow(vistaplan, documents, "main-window-start");
    makehelppictures(help);
    click("postbeambtn");
    keepplan(layoutgirder, guide, documents, "layout-girders");
    click("orange1btn");
    keepplan(layoutpanels, guide, documents, "layout-panels");
    click("roofbtn");
    keepplan(layoutroof, guide, documents, "layout-roof");
    click("fastchange");
    keepwindow(easyviews, documents, "easy-views");
    click("groupbtn");
    replaysolid({"girdhou1", "paneho1", "roofh1", "girdhou2", "paneho2", "roofh2"});
    keepwindow(vistaplan, documents, "main-window");
    looktower();
    replaysolid({"girdtow1", "paneto1",  "girdtow2", "paneto2",  "girdtow3", "paneto3",  "girdtow4",
                 "paneto4",  "girdtow5", "paneto5",  "girdtow6", "paneto6",  "girdtow7", "paneto7",
                 "girdtow8", "paneto8",  "girdtow9", "paneto9",  "girdtow0", "paneto0",  "rooft0"});
    savepicture(viewportimage(), (help / "startpicbox.png").string());
    dropwindows();
}

void copysamples(const fs::path& from, const fs::path& to) {
    for (const auto& sample : fs::directory_iterator(from))
        if (sample.path().extension() == ".txt") fs::copy(sample.path(), to);
}

}  // namespace

}  // namespace tessaly

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    if (argc != 4) {
        std::fputs("usage: makewindowpictures ROOT HELPFOLDER DOCFOLDER\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* ofscreens : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) qunsetenv(ofscreens);
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    tessaly::setlook(app);
    tessaly::usepicturefiles();
    try {
        const fs::path help = fs::absolute(argv[2]), documents = fs::absolute(argv[3]);
        const fs::path root = fs::absolute(argv[1]);
        const tessaly::workingfolder scratch(root);
        tessaly::copysamples(root / "samples", "designs");
        tessaly::makeall(root / "docs" / "guide.play", help, documents);
    } catch (const std::exception& failed) {
        std::fprintf(stderr, "makewindowpictures: %s\n", failed.what());
        return 1;
    }
    return 0;
}

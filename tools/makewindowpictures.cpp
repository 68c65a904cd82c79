// Makes the pictures of the windows: the five navigation pictures and the opening picture of the instructions window,
// cut out of the real main window so that they cannot go stale, and the window pictures of the guide and the README.
// makewindowpictures ROOT HELPFOLDER DOCFOLDER works in a scratch folder with the data and samples of ROOT.

#include "building/layouts.h"
#include "core/controls.h"
#include "core/world.h"
#include "tools/workingfolder.h"
#include "windows/handlers.h"
#include "windows/qt/binding.h"
#include "windows/qt/canvas.h"
#include "windows/qt/look.h"
#include "windows/qt/picturefiles/picturefile.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <initializer_list>
#include <string>

namespace tessaly {

namespace {

namespace fs = std::filesystem;

// A region of the main window, in twips, and the help button that shows it.
struct region {
    const char* button;
    twips place;
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

// The inside of a window at its designed size, sharp at times its pixels.
QImage shot(const window& w, int times = 1) {
    const QSize size = faceof(w)->designedsize();
    QImage image(size * times, QImage::Format_RGB32);
    image.setDevicePixelRatio(times);
    faceof(w)->plan()->render(&image, {}, QRegion(QRect({0, 0}, size)));
    image.setDevicePixelRatio(1);
    return image;
}

void keep(const QImage& image, const fs::path& folder, const char* name) {
    if (!image.save(QString::fromStdString((folder / (std::string(name) + ".png")).string()))) std::exit(1);
}

// What a help button has room for, in pixels: as much of it as its window shows, within its rim.
QSize roomofbutton(const char* name) {
    constexpr int rim = 2;
    const twips& place = findcontrol(name)->place;
    const int high = std::min(place.height, instructions.heighttwips - place.top);
    return {inpixels(place.width) - 2 * rim, inpixels(high) - 2 * rim};
}

// Leaves on the main window only the controls whose middle lies in a region: neighbours overlap its rim.
void showonly(const twips& place) {
    for (const control* c : vistaplan.controls) {
        const int x = c->place.left + c->place.width / 2 - place.left;
        const int y = c->place.top + c->place.height / 2 - place.top;
        widgetof(*c)->setVisible(c->shown && x >= 0 && x < place.width && y >= 0 && y < place.height);
    }
}

// A region on the main window's grey, which fills the button that shows it.
void makehelppictures(const fs::path& folder) {
    constexpr int sharp = 2;
    const auto inimage = [](int twips) { return sharp * twips / twipsperpixel; };
    for (const region& r : regions) {
        QImage filled(roomofbutton(r.button) * sharp, QImage::Format_RGB32);
        filled.fill(screencolour(vistaplan.back));
        const QSize shown =
            QSize(inimage(r.place.width), inimage(r.place.height)).scaled(filled.size(), Qt::KeepAspectRatio);
        showonly(r.place);
        const QImage cut =
            shot(vistaplan, sharp)
                .copy(inimage(r.place.left), inimage(r.place.top), inimage(r.place.width), inimage(r.place.height));
        QPainter(&filled).drawImage((filled.width() - shown.width()) / 2, 0,
                                    cut.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        keep(filled, folder, r.button);
    }
    showonly({0, 0, vistaplan.widthtwips, vistaplan.heighttwips});
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

void makeall(const fs::path& help, const fs::path& documents) {
    openwindows();
    click("startprogrambtn");
    keep(shot(vistaplan), documents, "main-window-start");
    makehelppictures(help);
    click("postbeambtn");
    keep(shot(layoutgirder), documents, "layout-girders");
    click("orange1btn");
    keep(shot(layoutpanels), documents, "layout-panels");
    click("fastchange");
    keep(shot(easyviews), documents, "easy-views");
    click("groupbtn");
    replaysolid({"girdhou1", "paneho1", "roofh1", "girdhou2", "paneho2", "roofh2"});
    keep(shot(vistaplan), documents, "main-window");
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
    for (const char* ofthescreen : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"})
        qunsetenv(ofthescreen);
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
        tessaly::makeall(help, documents);
    } catch (const std::exception& failed) {
        std::fprintf(stderr, "makewindowpictures: %s\n", failed.what());
        return 1;
    }
    return 0;
}

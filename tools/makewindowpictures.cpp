// Generates the pictures of the windows from the real windows: the five navigation pictures and the opening picture of
// the instructions window, and the window pictures of the guide and the README. makewindowpictures ROOT HELPFOLDER
// DOCFOLDER works in a scratch folder with the data and samples of ROOT.

#include "building/layouts.h"
#include "core/controls.h"
#include "core/world.h"
#include "picturefiles/picturefile.h"
#include "tools/generator.h"
#include "tools/picturedescription.h"
#include "tools/workingfolder.h"
#include "windows/qt/binding.h"
#include "windows/qt/canvas.h"
#include "windows/qt/style.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <clocale>
#include <cstdio>
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

// Returns whether the middle of a control is in a region of its window; neighbours may overlap the edge.
bool isin(const twips& region, const control& c) {
    const int x = c.bounds.left + c.bounds.width / 2 - region.left, y = c.bounds.top + c.bounds.height / 2 - region.top;
    return x >= 0 && x < region.width && y >= 0 && y < region.height;
}

twips fullbounds(const window& w) { return {0, 0, w.widthtwips, w.heighttwips}; }

// Returns the contents of a window at its designed size, rendered at the given multiple of its pixels.
QImage render(const window& w, int multiple = 1) {
    const QSize size = frameof(w)->content()->size();
    QImage image(size * multiple, QImage::Format_RGB32);
    image.setDevicePixelRatio(multiple);
    frameof(w)->content()->render(&image, {}, QRegion(QRect({0, 0}, size)));
    image.setDevicePixelRatio(1);
    return image;
}

// Describes the controls in a region of a window, sorted, and the pixels of viewport if it is one of them.
std::string descriptionof(const window& w, const twips& region) {
    std::set<std::string> lines;
    for (const control* c : w.controls)
        if (c->shown && isin(region, *c)) lines.insert(descriptionof(*c));
    std::string words = std::accumulate(lines.begin(), lines.end(), std::string());
    if (&w != &vistaplan || !isin(region, viewport)) return words;
    checksum pixels;
    for (int i = 0; i < viewportimage().width() * viewportimage().height(); ++i)
        pixels.add(std::uint64_t{viewportimage().pixels()[i]});
    return words + "on viewport " + pixels.text() + '\n';
}

// Returns the plan of a layout window with a frame around each button that the guide clicks.
QImage markedplan(const window& w, const fs::path& guide) {
    QImage image = render(w);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 60, 220), 3));
    std::ifstream clicks(guide);
    for (std::string word; clicks >> word;) {
        const control* c = findcontrol(word);
        if (c && c->parent == &w && c->elementnumber)
            painter.drawRoundedRect(QRectF(widgetof(*c)->geometry()).adjusted(-1.5, -1.5, 1.5, 1.5), 3, 3);
    }
    return image;
}

// Saves a picture of a region of a window.
void save(QImage image, const window& w, const twips& region, const fs::path& folder, const char* name) {
    setdescription(image, descriptionof(w, region));
    saveimage(image, folder / (std::string(name) + ".png"));
}

void savewindow(const window& w, const fs::path& folder, const char* name) {
    save(render(w), w, fullbounds(w), folder, name);
}

void saveplan(const window& w, const fs::path& guide, const fs::path& folder, const char* name) {
    save(markedplan(w, guide), w, fullbounds(w), folder, name);
}

// Returns the size of the picture on a help button in pixels: the visible part of the button without its rim.
QSize picturesize(const char* name) {
    constexpr int rim = 2;
    const twips& bounds = findcontrol(name)->bounds;
    const int high = std::min(bounds.height, instructions.heighttwips - bounds.top);
    return {inpixels(bounds.width) - 2 * rim, inpixels(high) - 2 * rim};
}

// Hides all controls of the main window outside a region.
void showonly(const twips& bounds) {
    for (const control* c : vistaplan.controls) widgetof(*c)->setVisible(c->shown && isin(bounds, *c));
}

// Saves a picture of each region, on the grey of the main window, in the size of its help button.
void makehelppictures(const fs::path& folder) {
    constexpr int density = 2;
    const auto inimage = [](int twips) { return density * twips / twipsperpixel; };
    for (const region& r : regions) {
        QImage filled(picturesize(r.button) * density, QImage::Format_RGB32);
        filled.fill(screencolour(vistaplan.background));
        const QSize shown =
            QSize(inimage(r.bounds.width), inimage(r.bounds.height)).scaled(filled.size(), Qt::KeepAspectRatio);
        showonly(r.bounds);
        const QImage cut =
            render(vistaplan, density)
                .copy(inimage(r.bounds.left), inimage(r.bounds.top), inimage(r.bounds.width), inimage(r.bounds.height));
        QPainter(&filled).drawImage((filled.width() - shown.width()) / 2, 0,
                                    cut.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        save(filled, vistaplan, r.bounds, folder, r.button);
    }
    showonly(fullbounds(vistaplan));
}

// Sets a view of the complete tower, with SET as a user would.
void setviewoftower() {
    struct typed {
        control& box;
        const char* text;
    };
    const typed texts[] = {{perptxtx, "1850"}, {perptxty, "-1850"}, {perptxtz, "1230"},
                           {focustxtx, "1"},   {focustxty, "1"},    {focustxtz, "600"},
                           {magtxt, ".036"},   {verttxt, "200"},    {horiztxt, "-270"}};
    for (const typed& t : texts) t.box.text = t.text;
    click("cventerbtn");
    click("groupbtn");
}

void makeall(const fs::path& guide, const fs::path& help, const fs::path& documents) {
    openwindows();
    click("startprogrambtn");
    savewindow(vistaplan, documents, "main-window-start");
    makehelppictures(help);
    click("postbeambtn");
    saveplan(layoutgirder, guide, documents, "layout-girders");
    click("orange1btn");
    saveplan(layoutpanels, guide, documents, "layout-panels");
    click("roofbtn");
    saveplan(layoutroof, guide, documents, "layout-roof");
    click("fastchange");
    savewindow(easyviews, documents, "easy-views");
    click("groupbtn");
    replaysolid({"girdhou1", "paneho1", "roofh1", "girdhou2", "paneho2", "roofh2"});
    savewindow(vistaplan, documents, "main-window");
    setviewoftower();
    replaysolid({"girdtow1", "paneto1",  "girdtow2", "paneto2",  "girdtow3", "paneto3",  "girdtow4",
                 "paneto4",  "girdtow5", "paneto5",  "girdtow6", "paneto6",  "girdtow7", "paneto7",
                 "girdtow8", "paneto8",  "girdtow9", "paneto9",  "girdtow0", "paneto0",  "rooft0"});
    savepicture(viewportimage(), (help / "startpicbox.png").string());
    destroywindows();
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
    for (const char* scaling : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) qunsetenv(scaling);
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    tessaly::setstyle();
    tessaly::usepicturefiles();
    return tessaly::generate("makewindowpictures", [argv] {
        const fs::path help = fs::absolute(argv[2]), documents = fs::absolute(argv[3]);
        const fs::path root = fs::absolute(argv[1]);
        const tessaly::workingfolder scratch(root);
        tessaly::copysamples(root / "samples", "designs");
        tessaly::makeall(root / "docs" / "guide.play", help, documents);
    });
}

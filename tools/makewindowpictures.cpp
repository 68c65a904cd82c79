// Generates the pictures of the windows from the real windows: the five navigation pictures and the opening picture of
// the instructions window, and the window pictures of the guide and the README. makewindowpictures ROOT HELPFOLDER
// DOCFOLDER works in a temporary folder with the data and samples of ROOT.

#include "building/layouts.h"
#include "core/controls.h"
#include "core/viewvalues.h"
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

void replaysolid(std::initializer_list<std::string> names) {
    for (const std::string& name : names) {
        click("autosolidsingle");
        pick("autofile5", name + ".txt");
    }
}

// Returns whether the middle of a control is in a region of its window; its edges may be outside.
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

// Returns a description of the controls in a region of a window, sorted, with the pixels of viewport if it is one.
std::string descriptionof(const window& w, const twips& region) {
    std::set<std::string> lines;
    for (const control* c : w.controls)
        if (c->shown && isin(region, *c)) lines.insert(descriptionof(*c));
    std::string words = std::accumulate(lines.begin(), lines.end(), std::string());
    if (&w != &vistaplan || !isin(region, viewport)) return words;
    checksum pixels;
    for (const std::uint32_t pixel : viewportimage().pixels) pixels.add(std::uint64_t{pixel});
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

// Saves a picture of each region, on the background of the main window, at the size of its help button.
void makehelppictures(const fs::path& folder) {
    constexpr int density = 2;  // pixels of the picture per pixel of the button, in each direction
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

// Sets a view of the complete tower, with SET, as a user would.
void setviewoftower() {
    const char* const texts[] = {"1850", "-1850", "1230", "1", "1", "600", ".036", "200", "-270"};
    std::size_t i = 0;
    for (const viewvalue& v : viewvalues) v.box.text = texts[i++];
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
    for (const char floordigit : std::string("1234567890"))
        replaysolid({std::string("girdtow") + floordigit, std::string("paneto") + floordigit});
    replaysolid({"rooft0"});
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* scaling : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) qunsetenv(scaling);
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    tessaly::setstyle();
    tessaly::usepicturefiles();
    return tessaly::rungenerator(argc, "makewindowpictures ROOT HELPFOLDER DOCFOLDER", [argv] {
        const fs::path root = fs::absolute(argv[1]), help = fs::absolute(argv[2]), documents = fs::absolute(argv[3]);
        const tessaly::workingfolder scratch(root);
        tessaly::copysamples(root / "samples", "designs");
        tessaly::makeall(root / "docs" / "guide.play", help, documents);
    });
}

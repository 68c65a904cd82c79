// Generates the element maps of el-numbers for users who edit design files. Each layout window gives one sheet, drawn
// from its position buttons, with all element numbers, the axes in layout units and a legend. makemaps FOLDER writes
// girders.png, panels.png and roofs.png (A4 landscape, 150 dots per inch).

#include "building/layouts.h"
#include "core/controls.h"
#include "tools/generator.h"
#include "tools/picturedescription.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <map>
#include <vector>

namespace tessaly {

namespace {

constexpr int sheetwidth = 1754, sheetheight = 1240;  // dots
constexpr int dotspermetre = 5906;
constexpr int margin = 70, planleft = 160, plantop = 180, planbottom = 1030;
constexpr double maxstretch = 1.4;  // of the width

struct sheet {
    const window& layout;
    const char *file, *title, *designs;
};
const sheet sheets[] = {
    {layoutgirder, "girders.png", "Tessaly: posts and beams of a floor",
     "the first number of a line in designs\\girders1.txt .. girders10.txt"},
    {layoutpanels, "panels.png", "Tessaly: panels of a floor",
     "the first number of a line in designs\\panels1.txt .. panels10.txt"},
    {layoutroof, "roofs.png", "Tessaly: roofs of a floor",
     "the first number of a line in designs\\roofs1.txt .. roofs10.txt"},
};

// Converts twips of the window to dots of the sheet.
struct scale {
    double across, down;
    int left, top;  // top left corner of the plan, twips
    QRectF rect(const twips& t) const {
        return {planleft + (t.left - left) * across, plantop + (t.top - top) * down, t.width * across, t.height * down};
    }
};

QColor shade(colour c) { return {c.red, c.green, c.blue}; }

QFont font(int dots, bool bold = false) {
    QFont f("DejaVu Sans");
    f.setPixelSize(dots);
    f.setBold(bold);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

// Returns the position buttons of a layout window.
std::vector<const control*> positionsof(const window& w) {
    std::vector<const control*> found;
    for (const control* c : w.controls)
        if (c->elementnumber != 0) found.push_back(c);
    return found;
}

// Returns the scale at which the plan fills the height of the sheet, stretched towards its width.
scale fit(const window& w) {
    int left = w.widthtwips, top = w.heighttwips, right = 0, bottom = 0;
    for (const control* c : positionsof(w)) {
        left = std::min(left, c->bounds.left);
        top = std::min(top, c->bounds.top);
        right = std::max(right, c->bounds.left + c->bounds.width);
        bottom = std::max(bottom, c->bounds.top + c->bounds.height);
    }
    const double across = double(sheetwidth - planleft - margin) / (right - left);
    const double down = double(planbottom - plantop) / (bottom - top);
    return {std::min(across, down * maxstretch), down, left, top};
}

void drawpositions(QPainter& p, const window& w, const scale& s) {
    for (const control* c : positionsof(w)) {
        const QRectF r = s.rect(c->bounds);
        const QColor fill = shade(*c->background);
        const bool dark = fill.lightnessF() < 0.4;
        p.setPen(QPen(Qt::black, 1));
        p.setBrush(dark ? fill : fill.lighter(115));
        p.drawRect(r);
        p.setPen(dark ? Qt::white : Qt::black);
        p.setFont(font(r.width() > 90 && r.height() > 90 ? 40 : r.width() < 38 ? 17 : 19, true));
        p.drawText(r, Qt::AlignCenter, QString::number(c->elementnumber));
    }
}

// Labels of an axis by their distance in dots. Button families in the same row or column share a label.
using axislabels = std::map<int, QStringList>;

void addcoordinate(axislabels& labels, double dot, int coordinate) {
    QStringList& label = labels[qRound(dot)];
    if (!label.contains(QString::number(coordinate))) label += QString::number(coordinate);
}

// Writes the X coordinates at the left and the Y coordinates at the top. Those of wide buttons are nearer to the plan.
void drawaxes(QPainter& p, const window& w, const scale& s) {
    axislabels across, inneracross, down;
    for (const buttonfamily& f : allbuttonfamilies()) {
        if (f.layout != &w) continue;
        for (int j = 0; j < f.county; ++j)
            addcoordinate(f.width > f.height ? inneracross : across,
                          s.rect({f.left0 + f.pitch * j, 0, f.width, 0}).center().x(), f.y0 + bayside * j);
        for (int i = 0; i < f.countx; ++i)
            addcoordinate(down, s.rect({0, f.top0 + f.pitch * i, 0, f.height}).center().y(), f.x0 + bayside * i);
    }
    p.setFont(font(17));
    p.setPen(Qt::black);
    for (const auto& [dot, label] : inneracross)
        p.drawText(QRectF(dot - 60, plantop - 32, 120, 24), Qt::AlignCenter, label.join(" / "));
    for (const auto& [dot, label] : across)
        p.drawText(QRectF(dot - 60, plantop - 56, 120, 24), Qt::AlignCenter, label.join(" / "));
    for (const auto& [dot, label] : down)
        p.drawText(QRectF(planleft - 110, dot - 12, 98, 24), Qt::AlignRight | Qt::AlignVCenter, label.join(" / "));
    p.setFont(font(28, true));
    p.drawText(QRectF(planleft - 20, plantop - 96, 300, 40), Qt::AlignLeft | Qt::AlignVCenter, "Y  \u2192");
    p.drawText(QRectF(10, plantop + 10, 50, 90), Qt::AlignHCenter | Qt::AlignTop, "X\n\u2193");
}

void drawlegend(QPainter& p, const window& w) {
    int y = planbottom + 36;
    for (const buttonfamily& f : allbuttonfamilies()) {
        if (f.layout != &w) continue;
        p.setPen(QPen(Qt::black, 1));
        p.setBrush(shade(f.background));
        p.drawRect(QRectF(planleft, y, f.width >= f.height ? 44 : 18, f.height >= f.width ? 30 : 18));
        p.setPen(Qt::black);
        p.setFont(font(21));
        const int last = f.firstnumber + f.countx * f.county - 1;
        p.drawText(QRectF(planleft + 64, y - 4, 1400, 34), Qt::AlignLeft | Qt::AlignVCenter,
                   QString("%1 to %2   %3   (buttons %4..y..)")
                       .arg(f.firstnumber)
                       .arg(last)
                       .arg(f.accessiblename, f.nameprefix));
        y += 38;
    }
}

std::string descriptionof(const sheet& of) {
    std::string words = std::string(of.title) + '\n' + of.designs + '\n';
    for (const buttonfamily& f : allbuttonfamilies())
        if (f.layout == &of.layout)
            words += std::string(f.nameprefix) + ' ' + std::to_string(f.firstnumber) + ' ' + f.accessiblename + '\n';
    for (const control* c : positionsof(of.layout)) words += descriptionof(*c);
    return words;
}

void drawsheet(const sheet& of, const std::filesystem::path& folder) {
    QImage image(sheetwidth, sheetheight, QImage::Format_RGB32);
    image.setDotsPerMeterX(dotspermetre);
    image.setDotsPerMeterY(dotspermetre);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(font(34, true));
    p.drawText(QRectF(margin, 24, 1100, 44), Qt::AlignLeft | Qt::AlignVCenter, of.title);
    p.setFont(font(21));
    p.drawText(QRectF(sheetwidth - margin - 900, 28, 900, 40), Qt::AlignRight | Qt::AlignVCenter, of.designs);
    const scale s = fit(of.layout);
    drawaxes(p, of.layout, s);
    drawpositions(p, of.layout, s);
    drawlegend(p, of.layout);
    p.end();
    setdescription(image, descriptionof(of));
    saveimage(image, folder / of.file);
}

void makeall(const std::filesystem::path& folder) {
    resetcontrols();
    addlayoutbuttons();
    for (const sheet& s : sheets) drawsheet(s, folder);
}

}  // namespace

}  // namespace tessaly

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    return tessaly::rungenerator(argc, "makemaps FOLDER", [argv] { tessaly::makeall(argv[1]); });
}

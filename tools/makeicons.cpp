// Generates the icon as PNG files of several sizes, for desktops that do not support SVG. The build runs makeicons SVG
// FOLDER, which writes FOLDER/16x16/apps/tessaly.png and so on, the folders in which desktops look for icons.

#include "tools/generator.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <filesystem>
#include <string>

namespace {

constexpr int sizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

void makeicon(QSvgRenderer& drawing, int size, const std::filesystem::path& folder) {
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    drawing.render(&painter);
    painter.end();
    const std::string text = std::to_string(size);
    const std::filesystem::path apps = folder / (text + "x" + text) / "apps";
    std::filesystem::create_directories(apps);
    tessaly::saveimage(icon, apps / "tessaly.png");
}

}  // namespace

int main(int argc, char** argv) {
    return tessaly::rungenerator(argc, "makeicons SVG FOLDER", [argv] {
        QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
        if (!drawing.isValid()) throw std::runtime_error(std::string(argv[1]) + " is not a drawing");
        for (const int size : sizes) makeicon(drawing, size, argv[2]);
    });
}

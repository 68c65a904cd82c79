// Generates the icon as one PNG per size, for desktops that do not support SVG, in the folders where desktops look for
// icons. The build runs makeicons SVG FOLDER, which writes FOLDER/16x16/apps/tessaly.png and so on.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <filesystem>
#include <string>

namespace {

constexpr int sizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

bool makeicon(QSvgRenderer& drawing, int size, const std::filesystem::path& folder) {
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    drawing.render(&painter);
    painter.end();
    const std::string text = std::to_string(size);
    const std::filesystem::path target = folder / (text + "x" + text) / "apps";
    std::filesystem::create_directories(target);
    return icon.save(QString::fromStdString((target / "tessaly.png").string()));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: makeicons SVG FOLDER\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    bool made = drawing.isValid();
    for (const int size : sizes) made = made && makeicon(drawing, size, argv[2]);
    if (!made) std::fprintf(stderr, "makeicons: no icon of %s in %s\n", argv[1], argv[2]);
    return made ? 0 : 1;
}

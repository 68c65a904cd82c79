// Picture files: PNG out, any picture that the image library knows in, told by its content. A picture takes its name
// only when it is whole, and one that is not whole is not shown: the one that was there before stays.

#include "picturefiles/picturefile.h"

#include "core/failure.h"
#include "core/textfiles.h"
#include "picturefiles/rasterview.h"

#include <QFile>
#include <QImageReader>
#include <QSaveFile>
#include <QtEndian>

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

void writepng(const raster& image, const std::string& path) {
    QSaveFile file(QFile::decodeName(systempath(path).c_str()));
    if (!file.open(QIODevice::WriteOnly))
        throw failure(failurekind::fileaccess, file.errorString().toStdString(), path + " (picture)");
    if (!viewof(image).save(&file, "png") || !file.commit())
        throw failure(failurekind::fileaccess,
                      "the picture could not be written in whole: " + file.errorString().toStdString(), path);
}

// Whether a bitmap is shorter than its head says; the library would show the missing rows as black.
bool cutshort(QFile& file) {
    const QByteArray head = file.peek(6);  // "BM", then the size of the whole file
    return head.startsWith("BM") && head.size() == 6 && qFromLittleEndian<quint32>(head.constData() + 2) > file.size();
}

bitmap readimage(const std::string& path) {
    QFile file;  // by its handle: the library would lose a name that is no UTF-8
    if (!file.open(openfile(path, "picture"), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        throw failure(failurekind::fileaccess, file.errorString().toStdString(), path + " (picture)");
    if (cutshort(file)) throw failure(failurekind::invalidcall, "the file is not whole", path + " (picture)");
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QImage picture = reader.read().convertToFormat(QImage::Format_RGB32);
    if (picture.isNull())
        throw failure(failurekind::invalidcall, reader.errorString().toStdString(), path + " (picture)");
    bitmap read{picture.width(), picture.height(), {}};
    for (int y = 0; y < read.height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(picture.constScanLine(y));
        std::transform(row, row + read.width, std::back_inserter(read.pixels),
                       [](std::uint32_t pixel) { return pixel | 0xff000000U; });
    }
    return read;
}

bool endswithnocase(const std::string& path, const std::string& ending) {
    return path.size() >= ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), path.rbegin(), [](char a, char b) { return a == (b | 0x20); });
}

}  // namespace

void usepicturefiles() { readpicture = readimage; }

void savepicture(const raster& image, const std::string& path) {
    if (endswithnocase(path, ".png")) return writepng(image, path);
    if (endswithnocase(path, ".bmp")) return writebitmap(image.picture(), path);
    throw failure(failurekind::fileaccess, "a name that ends in .png or .bmp was expected", path);
}

}  // namespace tessaly

// Reads and writes picture files with Qt Gui. The contents of a file determine its kind, not its name. Kinds that can
// contain instructions or refer to other files, such as SVG, are never passed to Qt.

#include "picturefiles/picturefile.h"

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/wholefile.h"
#include "picturefiles/rasterview.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <iterator>

namespace tessaly {

namespace {

constexpr int maxmegabytes = 64;                  // of a picture in memory
constexpr qint64 maxpixels = maxmegabytes << 18;  // at four bytes per pixel

// Returns a BMP unchanged. Fails if it has fewer bytes than its header says: Qt would show the missing rows in black.
std::string completebmp(std::string bytes) {
    constexpr std::size_t sizeoffset = 2, headersize = 14;
    if (bytes.size() >= headersize && qFromLittleEndian<quint32>(bytes.data() + sizeoffset) <= bytes.size())
        return bytes;
    throw failure(failurekind::invalidcall, "the file is not complete");
}

// Returns a PNG without its ancillary chunks: a few megabytes of compressed text can expand to gigabytes.
std::string criticalchunks(std::string bytes) {
    constexpr std::size_t signaturesize = 8, typeoffset = 4, emptychunksize = 12;
    constexpr char ancillary = 0x20;
    std::string critical = bytes.substr(0, signaturesize);
    for (std::size_t at = signaturesize; at + emptychunksize <= bytes.size();) {
        const quint64 length = quint64{qFromBigEndian<quint32>(bytes.data() + at)} + emptychunksize;
        const auto available = static_cast<std::size_t>(std::min<quint64>(length, bytes.size() - at));
        if (!(bytes[at + typeoffset] & ancillary)) critical.append(bytes, at, available);
        at += available;
    }
    return critical;
}

// Returns a JPEG unchanged. Fails if it has more than 100 scans: usual files have a dozen at most, and decoding
// thousands would take hours.
std::string limitedscans(std::string bytes) {
    constexpr int maxscans = 100;
    int scans = 0;
    for (std::size_t at = 0; (at = bytes.find("\xFF\xDA", at)) != std::string::npos; ++at) ++scans;
    if (scans <= maxscans) return bytes;
    throw failure(failurekind::invalidcall, "the picture has " + std::to_string(scans) + " scans, at most " +
                                                std::to_string(maxscans) + " were expected");
}

std::string unchanged(std::string bytes) { return bytes; }

struct picturekind {
    const char* qtformat;
    std::string_view signature;                   // the first bytes of such a file
    std::string (*safebytes)(std::string bytes);  // returns what Qt can decode safely
};
constexpr picturekind kinds[] = {
    // clang-format off
    {"bmp",  "BM",                 completebmp},
    {"png",  "\x89PNG\r\n\x1A\n", criticalchunks},
    {"jpeg", "\xFF\xD8\xFF",       limitedscans},
    {"gif",  "GIF8",               unchanged},
    // clang-format on
};

void writepng(const raster& image, const std::string& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!viewof(image).save(&buffer, "png"))
        throw failure(failurekind::fileaccess, "the picture could not be encoded as PNG", shortpath(path));
    replacefile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())}, "picture");
}

// Decodes the upper left part of a picture, at most as large as viewport.
QImage decode(const picturekind& kind, const std::string& bytes) {
    QByteArray contents = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&contents);
    QImageReader reader(&buffer, kind.qtformat);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > maxpixels)
        throw failure(failurekind::invalidcall, "the picture has " + std::to_string(size.width()) + " x " +
                                                    std::to_string(size.height()) + " pixels, at most " +
                                                    std::to_string(maxpixels) + " were expected");
    reader.setClipRect(QRect(0, 0, viewportwidth, viewportheight).intersected(QRect(QPoint(), size)));
    const QImage picture = reader.read().convertToFormat(QImage::Format_RGB32);
    if (picture.isNull()) throw failure(failurekind::invalidcall, reader.errorString().toStdString());
    return picture;
}

QImage decode(const std::string& bytes) {
    for (const picturekind& kind : kinds)
        if (bytes.starts_with(kind.signature)) return decode(kind, kind.safebytes(bytes));
    throw failure(failurekind::invalidcall, "a BMP, PNG, JPEG or GIF picture was expected");
}

bitmap readimage(const std::string& path) {
    QImage picture;
    try {
        picture = decode(filebytes(path, "picture"));
    } catch (failure& f) {
        f.addlocation(path + " (picture)");
        throw;
    }
    bitmap image{picture.width(), picture.height(), {}};
    for (int y = 0; y < image.height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(picture.constScanLine(y));
        std::transform(row, row + image.width, std::back_inserter(image.pixels),
                       [](std::uint32_t pixel) { return pixel | 0xff000000U; });
    }
    return image;
}

// Returns whether path ends with an extension in lower-case or upper-case letters. extension is in lower case.
bool hasextension(const std::string& path, const std::string& extension) {
    return path.size() >= extension.size() && std::equal(extension.rbegin(), extension.rend(), path.rbegin(),
                                                         [](char a, char b) { return a == (b | 0x20); });
}

}  // namespace

void usepicturefiles() {
    QImageReader::setAllocationLimit(maxmegabytes);
    readpicture = readimage;
}

void savepicture(const raster& image, const std::string& path) {
    if (hasextension(path, ".png")) return writepng(image, path);
    if (hasextension(path, ".bmp")) return writebitmap(image, path);
    throw failure(failurekind::fileaccess, "a name that ends in .png or .bmp was expected", shortpath(path));
}

}  // namespace tessaly

// Palette files, read by record number; there is nothing to fail on but the file itself.

#include "render/palette.h"

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/world.h"

#include <utility>

namespace tessaly {

namespace {

constexpr int recordbytes = 8;
constexpr int lastrecordread = 236;

// The signed 16-bit little-endian figure at a byte of the file, 0 behind its end.
int figureat(const std::string& bytes, std::size_t at) {
    if (at + 1 >= bytes.size()) return 0;
    const auto low = static_cast<unsigned char>(bytes[at]), high = static_cast<unsigned char>(bytes[at + 1]);
    return static_cast<std::int16_t>(low | (high << 8));
}

}  // namespace

void loadpalette() {
    const std::string path = "pals\\" + palname.text() + ".pal";
    std::string bytes;
    try {
        textinput& in = openinput(1, path, "palette");
        bytes = std::move(in.bytes);
        in.close();
    } catch (const failure& f) {
        // A record file is opened for reading and writing alike: a missing one is merely empty. Its folder has to be
        // there.
        if (f.kind != failurekind::filenotfound) throw;
        filesin("pals\\");
    }
    for (int k = 1; k <= lastrecordread; ++k) {
        const auto record = static_cast<std::size_t>((k - 1) * recordbytes);
        palblue.set(k, figureat(bytes, record + 2));
        palgreen.set(k, figureat(bytes, record + 4));
        palred.set(k, figureat(bytes, record + 6));
    }
}

}  // namespace tessaly

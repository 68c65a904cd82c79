// Reads palette files and converts their numbers to drawing colours.

#include "render/palette.h"

#include "core/failure.h"
#include "core/textfiles.h"
#include "core/world.h"

#include <algorithm>
#include <utility>

namespace tessaly {

namespace {

constexpr int recordbytes = 8;
constexpr int lastrecordread = 236;

// Returns the signed 16-bit little-endian number that starts at an offset in the file, 0 after the end of the file.
int numberat(const std::string& bytes, std::size_t offset) {
    if (offset + 1 >= bytes.size()) return 0;
    const auto low = static_cast<unsigned char>(bytes[offset]), high = static_cast<unsigned char>(bytes[offset + 1]);
    return static_cast<std::int16_t>(low | (high << 8));
}

// Returns a component as a byte. Fails as palettecolour does, with location().
template <class locator>
std::uint8_t component(const value& number, locator location) {
    const double rounded = nearestwhole(number);
    if (!(rounded >= -32768 && rounded <= 32767))
        throw failure(failurekind::overflow,
                      "colour component " + plaintext(number) + ", a whole number -32768..32767 was expected",
                      location());
    if (rounded < 0)
        throw failure(failurekind::invalidcall, "colour component " + plaintext(number) + ", 0..255 was expected",
                      location());
    return static_cast<std::uint8_t>(std::min(rounded, 255.0));
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
        // A missing palette counts as an empty one, but its folder must exist: filesin fails if it does not.
        if (f.kind != failurekind::filenotfound) throw;
        filesin("pals\\");
    }
    for (int k = 1; k <= lastrecordread; ++k) {
        const auto record = static_cast<std::size_t>(k - 1) * recordbytes;
        palblue.set(k, numberat(bytes, record + 2));
        palgreen.set(k, numberat(bytes, record + 4));
        palred.set(k, numberat(bytes, record + 6));
    }
}

colour palettecolour(const value& index) {
    const int entry = indexof(index, "palette", lastcolour);
    const auto record = [entry] { return "pals\\" + palname.text() + ".pal, record " + std::to_string(entry); };
    return {component(palred[entry], record), component(palgreen[entry], record), component(palblue[entry], record)};
}

colour backgroundcolour() {
    const auto row = [](int i) { return [i] { return "datah\\start.txt, " + numberlocation("BACKGROUNDCOLOR:", i); }; };
    return {component(backred, row(1)), component(backgreen, row(2)), component(backblue, row(3))};
}

}  // namespace tessaly

// Drawing colours from components and from the palette.

#include "core/colour.h"

#include "core/failure.h"
#include "core/world.h"

#include <algorithm>

namespace tessaly {

namespace {

std::uint8_t component(double figure) {
    const double whole = nearestwhole(figure);
    if (!(whole >= -32768 && whole <= 32767))
        throw failure(failurekind::overflow,
                      "colour component " + plaintext(figure) + ", a whole number -32768..32767 was expected");
    if (whole < 0)
        throw failure(failurekind::invalidcall, "colour component " + plaintext(figure) + ", 0..255 was expected");
    return static_cast<std::uint8_t>(std::min(whole, 255.0));
}

// The colour of three components: rounded to whole numbers, above 255 taken as 255. Fails with overflow outside the
// 16-bit range, with invalid call below 0, with type mismatch for a text, and tells with location(0..2) where the
// component stands in the files.
template <class locating>
colour colourof(std::initializer_list<value> components, locating location) {
    std::uint8_t made[3];
    int i = 0;
    try {
        for (const value& figure : components) {
            made[i] = component(figure);
            ++i;
        }
    } catch (failure& f) {
        f.addlocation(location(i));
        throw;
    }
    return {made[0], made[1], made[2]};
}

}  // namespace

colour palettecolour(const value& index) {
    const int entry = indexof(index, "palette", lastcolour);
    return colourof({palred[entry], palgreen[entry], palblue[entry]},
                    [entry](int) { return "pals\\" + palname.text() + ".pal, record " + std::to_string(entry); });
}

colour backgroundcolour() {
    return colourof({backred, backgreen, backblue},
                    [](int i) { return "datah\\start.txt, " + numberin("BACKGROUNDCOLOR:", i + 1); });
}

}  // namespace tessaly

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
                      "colour component " + shortesttext(figure) + ", a whole number -32768..32767 was expected");
    if (whole < 0)
        throw failure(failurekind::invalidcall, "colour component " + shortesttext(figure) + ", 0..255 was expected");
    return static_cast<std::uint8_t>(std::min(whole, 255.0));
}

}  // namespace

colour makecolour(const value& red, const value& green, const value& blue) {
    return {component(red), component(green), component(blue)};
}

colour palettecolour(const value& index) { return makecolour(palred[index], palgreen[index], palblue[index]); }

}  // namespace tessaly

// A drawing colour: three components 0..255.
#pragma once

#include "core/value.h"

#include <cstdint>

namespace tessaly {

struct colour {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const colour&) const = default;
};

// The colour of three components: rounded to whole numbers, above 255 taken as 255. Fails with overflow outside the
// 16-bit range, with invalid call below 0, with type mismatch for a text.
colour makecolour(const value& red, const value& green, const value& blue);

// The colour at a palette index; fails with subscript out of range outside 0..256, else as makecolour, naming the
// palette's record.
colour palettecolour(const value& index);

// The colour of backred, backgreen, backblue; fails as makecolour, naming the start file.
colour backgroundcolour();

}  // namespace tessaly

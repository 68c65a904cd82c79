// A drawing colour: three components 0..255.
#pragma once

#include "core/value.h"

#include <cstdint>

namespace tessaly {

struct colour {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const colour&) const = default;
};

// The colour at a palette index: its components rounded to whole numbers, above 255 taken as 255. Fails with subscript
// out of range outside 0..256; for a component outside the 16-bit range with overflow, below 0 with invalid call,
// naming the palette's record.
colour palettecolour(const value& index);

// The colour of backred, backgreen, backblue, likewise; a failure, also with type mismatch for a text, names the start
// file.
colour backgroundcolour();

}  // namespace tessaly

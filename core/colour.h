// A drawing colour: three components 0..255.
#pragma once

#include <cstdint>

namespace tessaly {

struct colour {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const colour&) const = default;
};

}  // namespace tessaly

// A checksum of the added data in their order, the same on every machine: 64-bit FNV-1a, but addword adds eight bytes
// in one step.
#pragma once

#include <bit>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace tessaly {

class checksum {
  public:
    void add(std::string_view bytes) {
        for (const char c : bytes) {
            sum ^= static_cast<unsigned char>(c);
            sum *= 0x100000001b3;
        }
    }
    void add(std::uint64_t number) {  // adds its bytes, the lowest first
        for (int i = 0; i < 8; ++i, number >>= 8) {
            sum ^= number & 0xff;
            sum *= 0x100000001b3;
        }
    }
    void addword(std::uint64_t word) {  // adds 64 bits in one step, which is faster for long tables
        sum ^= word;
        sum *= 0x100000001b3;
    }
    void add(float number) { add(std::uint64_t{std::bit_cast<std::uint32_t>(number)}); }
    void add(double number) { add(std::bit_cast<std::uint64_t>(number)); }

    bool operator==(const checksum&) const = default;

    std::string text() const {  // sixteen hexadecimal digits
        char digits[17];
        std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(sum));
        return digits;
    }
    std::string shorttext() const {  // six: enough to notice a change
        char digits[7];
        std::snprintf(digits, sizeof digits, "%06x", static_cast<unsigned>(sum ^ sum >> 32) >> 8);
        return digits;
    }

  private:
    std::uint64_t sum = 0xcbf29ce484222325;
};

}  // namespace tessaly

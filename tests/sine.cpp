// Sine and cosine, which must be the same on all machines.
#include "core/sine.h"

#include "data/pointtransforms.h"

#include <gtest/gtest.h>

using namespace tessaly;

// Angles at which libraries and processors round differently, and common ones. The results were computed with 120
// digits.
TEST(sine, isRoundedToTheNearestDouble) {
    constexpr double rows[][3] = {
        // degrees, cosine, sine
        {0, 1, 0},
        {90, 0x1.6428a6aa4625bp-20, 0x1.fffffffffe108p-1},
        {180, -0x1.fffffffff8420p-1, 0x1.6428a6aa44cd0p-19},
        {270, -0x1.0b1e7d0031eafp-18, -0x1.ffffffffee947p-1},
        {-33.25, 0x1.ac2dbbf790497p-1, -0x1.18b9d6218e1e7p-1},
        {11.5, 0x1.f5b8b2001db22p-1, 0x1.984e20e54f80dp-3},
        {205.75, -0x1.cd287e0a57ff4p-1, -0x1.bcde805a685b3p-2},
        {629.75, -0x1.1e8ff04167ac4p-8, -0x1.fffebf39adc37p-1},
        {5e10, -0x1.c8fa0d414404cp-1, -0x1.cdce61abe32e5p-2},
    };
    for (const auto& [degrees, cosine, sine] : rows) {
        EXPECT_EQ(cosineof(radians(degrees)), cosine) << degrees;
        EXPECT_EQ(sineof(radians(degrees)), sine) << degrees;
    }
}

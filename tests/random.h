// Random numbers for tests, the same at every run.
#pragma once

#include <cmath>
#include <random>

namespace tessaly {

class randomnumbers {
  public:
    explicit randomnumbers(unsigned seed = 7) : engine(seed) {}
    int whole(int from, int to) { return std::uniform_int_distribution(from, to)(engine); }
    double real(double from, double to) { return std::uniform_real_distribution(from, to)(engine); }
    double within(double limit) { return real(-limit, limit); }
    bool oncein(int calls) { return whole(1, calls) == 1; }

  private:
    std::mt19937 engine;
};

}  // namespace tessaly

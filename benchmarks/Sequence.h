#pragma once

#include <cstdint>

namespace benchmarks {

/// Small deterministic numbers: a linear congruential generator with the constants of Knuth's MMIX.
class Sequence {
public:
    explicit Sequence(std::uint64_t seed) : state_(seed) {}

    unsigned int below(unsigned int bound) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<unsigned int>((state_ >> 33U) % bound);
    }

private:
    std::uint64_t state_;
};

}  // namespace benchmarks

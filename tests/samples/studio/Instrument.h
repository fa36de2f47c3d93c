#pragma once

#include <tests/samples/colorimetry.h>

#include <cstdint>
#include <random>

namespace studio {

/// A measuring instrument: it errs by up to 0.1 % and shows steps of 0.0001.
///
/// The same seed gives the same errors everywhere: the generator's numbers are laid down by the C++ standard, and what
/// is made of them is coarse enough for the mathematical functions of every system to agree.
class Instrument {
public:
    explicit Instrument(std::uint32_t seed) : random_(seed) {}

    [[nodiscard]] colorimetry::Triple measure(const colorimetry::Triple& shown) {
        const double first = shown[0] * factor();
        const double second = shown[1] * factor();
        const double third = shown[2] * factor();
        return colorimetry::roundedTo(0.0001, {first, second, third});
    }

private:
    double factor() { return 1.0 + (static_cast<double>(random_() % 2001) - 1000.0) / 1e6; }

    std::mt19937 random_;
};

}  // namespace studio

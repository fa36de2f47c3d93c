#include <lvdata/core/detail/fixed_point.h>

namespace lv::detail {

// This file is compiled with -ffp-contract=off: fused into one operation, product and sum would be rounded only once.
std::uint32_t scaledBits(double value, double factor) {
    constexpr double bound = 9223372036854775808.0;  // 2^63
    const double product = value * factor;
    const double scaled = product + 0.5;
    if (!(scaled > -bound && scaled < bound)) {  // a NaN is on neither side
        return 0;
    }
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(scaled));
}

}  // namespace lv::detail

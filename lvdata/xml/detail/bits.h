#pragma once

#include <cstdint>

#if defined(_MSC_VER) && !defined(__clang__)
#include <intrin.h>
#endif

namespace lv::detail {

// What C++20 has as std::countr_zero and std::bit_width. At least one bit must be set.

#if defined(_MSC_VER) && !defined(__clang__)

/// How many of the lowest bits are not set.
inline int trailingZeros(std::uint64_t bits) {
    unsigned long index = 0;
    _BitScanForward64(&index, bits);
    return static_cast<int>(index);
}

/// How many bits there are up to the highest that is set.
inline int bitLength(std::uint64_t bits) {
    unsigned long index = 0;
    _BitScanReverse64(&index, bits);
    return static_cast<int>(index) + 1;
}

#else

/// How many of the lowest bits are not set.
inline int trailingZeros(std::uint64_t bits) {
    return __builtin_ctzll(bits);
}

/// How many bits there are up to the highest that is set.
inline int bitLength(std::uint64_t bits) {
    return 64 - __builtin_clzll(bits);
}

#endif

}  // namespace lv::detail

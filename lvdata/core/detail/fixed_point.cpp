#include <lvdata/core/detail/fixed_point.h>
#include <lvdata/xml/detail/bits.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace lv::detail {
namespace {

// What a processor with IEEE 754 doubles gives for `value * factor + 0.5`, both operations rounded to nearest with ties
// to even, is computed with integers here: processors with wider registers (x87), and those that fuse product and sum,
// would round differently.

constexpr int doubleBits = 53;

/// mantissa * 2^exponent
struct Magnitude {
    std::uint64_t mantissa;
    int exponent;
};

std::uint64_t lowBits(int count) {
    return (std::uint64_t{1} << count) - 1;
}

/// Without the lowest bits, of which the lowest that is left stands for all: set when one of them was.
std::uint64_t withStickyBit(std::uint64_t mantissa, int lost) {
    return mantissa >> lost | ((mantissa & lowBits(lost)) != 0 ? 1U : 0U);
}

/// Rounded to the bits of a double.
Magnitude rounded(const Magnitude& exact) {
    const int lost = bitLength(exact.mantissa) - doubleBits;
    if (lost <= 0) {
        return exact;
    }
    const std::uint64_t half = std::uint64_t{1} << (lost - 1);
    const std::uint64_t rest = exact.mantissa & lowBits(lost);
    const std::uint64_t kept = exact.mantissa >> lost;
    const bool up = rest > half || (rest == half && kept % 2 == 1);
    return {kept + (up ? 1 : 0), exact.exponent + lost};  // of up to 2^53
}

/// A value that is not 0, without its sign. Those below the least normal number come out up to twice as large as that
/// number, which is still nothing beside one half.
Magnitude magnitudeOf(double value) {
    static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == sizeof(std::uint64_t));
    constexpr int fractionBits = doubleBits - 1;  // the highest bit of the mantissa is not stored
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    const auto exponent = static_cast<int>(bits >> fractionBits & lowBits(11));
    return {(bits & lowBits(fractionBits)) | std::uint64_t{1} << fractionBits, exponent - 1023 - fractionBits};
}

/// The magnitude (upper * 2^32 + lower) * 2^exponent, whose lower part has 32 bits. Bits beyond 64 become a sticky bit.
Magnitude joined(std::uint64_t upper, std::uint64_t lower, int exponent) {
    const int lost = std::max(bitLength(upper) - 32, 0);
    return {upper << (32 - lost) | withStickyBit(lower, lost), exponent + lost};
}

/// The product has up to 85 bits.
Magnitude product(const Magnitude& value, std::uint32_t factor) {
    const std::uint64_t lower = (value.mantissa & lowBits(32)) * factor;
    const std::uint64_t upper = (value.mantissa >> 32U) * factor + (lower >> 32U);
    return rounded(joined(upper, lower & lowBits(32), value.exponent));
}

constexpr int leastExponent = -63;                 // below it the product is less than one half by far
constexpr int greatestExponent = 63 - doubleBits;  // above it the product is 2^63 or more
constexpr int greatestChecked = 33 - doubleBits;   // above it the product is 2^33 or more

/// The whole part of the magnitude plus or minus one half, rounded before it is truncated. Between these two exponents
/// everything fits into 64 bits, but for 2^63 itself, which gives 0 as all that is larger.
std::uint64_t wholePart(const Magnitude& magnitude, bool isNegative) {
    const int exponent = std::min(magnitude.exponent, -1);
    const std::uint64_t mantissa = magnitude.mantissa << (magnitude.exponent - exponent);
    const std::uint64_t half = std::uint64_t{1} << (-1 - exponent);
    if (isNegative && mantissa <= half) {
        return 0;
    }
    const Magnitude sum = rounded({isNegative ? mantissa - half : mantissa + half, exponent});
    return sum.exponent < 0 ? sum.mantissa >> -sum.exponent : sum.mantissa << sum.exponent;
}

}  // namespace

std::uint32_t scaledBits(double value, std::uint32_t factor) {
    if (!std::isfinite(value) || value == 0.0) {
        return 0;
    }
    const Magnitude scaled = product(magnitudeOf(value), factor);
    if (scaled.exponent < leastExponent || scaled.exponent > greatestExponent) {
        return 0;
    }
    const bool isNegative = value < 0.0;
    const auto bits = static_cast<std::uint32_t>(wholePart(scaled, isNegative));
    return isNegative ? 0U - bits : bits;
}

std::optional<std::int64_t> nearestStep(double value, std::uint32_t factor) {
    if (!std::isfinite(value) || factor == 0) {
        return std::nullopt;
    }
    if (value == 0.0) {
        return 0;
    }
    const Magnitude scaled = product(magnitudeOf(value), factor);
    if (scaled.exponent > greatestChecked) {
        return std::nullopt;
    }
    if (scaled.exponent < leastExponent) {
        return 0;
    }
    const std::uint64_t half = std::uint64_t{1} << (-1 - scaled.exponent);  // at most 2^62, so the sum has 64 bits
    const auto steps = static_cast<std::int64_t>((scaled.mantissa + half) >> -scaled.exponent);
    return value < 0.0 ? -steps : steps;
}

/// The quotient gets at least 64 bits, and one that says whether the division left something over.
double quotient(std::uint32_t stored, std::uint32_t factor) {
    if (stored == 0) {
        return 0.0;
    }
    const int shift = 64 - bitLength(stored);
    const std::uint64_t dividend = std::uint64_t{stored} << shift;
    const std::uint64_t rest = dividend % factor << 32U;
    const std::uint64_t lower = rest / factor | (rest % factor != 0 ? 1U : 0U);
    const Magnitude nearest = rounded(joined(dividend / factor, lower, -32 - shift));
    return std::ldexp(static_cast<double>(nearest.mantissa), nearest.exponent);
}

}  // namespace lv::detail

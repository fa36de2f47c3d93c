#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lv::analysis {

/// The number of digits after the point that the factor of a quantity gives natural values: 6 for 1000000. None for
/// factors that are not a power of ten, such as 255: their numbers stay unscaled.
[[nodiscard]] std::size_t decimalsOf(std::uint32_t factor);

/// Where `naturalText` writes: room for a sign, a point, and the digits of a stored number and of its factor.
using DecimalBuffer = std::array<char, 32>;

/// The natural value of a stored number: the point is moved by that many digits, and zeros at the end are dropped.
/// "-700000" with 6 decimals is "-0.7". `stored` is a number as records write it; the result is a view into it or into
/// the buffer.
[[nodiscard]] std::string_view naturalText(std::string_view stored, std::size_t decimals, DecimalBuffer& buffer);

/// The range of a stored number.
struct StoredRange {
    std::int64_t least;     ///< The least number,
    std::int64_t greatest;  ///< the greatest.
};

/// Of unsigned and of signed numbers of 32 bits.
inline constexpr StoredRange unsignedRange = {0, 4294967295};
inline constexpr StoredRange signedRange = {-2147483648LL, 2147483647};

/// The stored number of a natural value: multiplied by that power of ten and rounded to the nearest integer, half away
/// from zero. Computed with the digits, so it is exact. Null when it is out of range.
///
/// \param natural  a number as JSON writes it, with any exponent. The point may be any other character, because a
///                 parser may use that of the locale.
[[nodiscard]] std::optional<std::int64_t> storedNumber(std::string_view natural, std::size_t decimals,
                                                       StoredRange range);

/// The nearest double to a decimal text, such as "-12.5", ".5", "5." or "1e-3", in any locale. Null for any other text,
/// with a plus sign at the start, spaces, "inf" or "nan", and when the number is too large or too small for a double.
[[nodiscard]] std::optional<double> decimalNumber(std::string_view text);

}  // namespace lv::analysis

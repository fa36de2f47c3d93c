#pragma once

#include <cfloat>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace lv::detail {

/// The low 32 bits of the 64-bit integer that `value * factor + 0.5` gives when it is truncated toward zero; 0 where it
/// has no such integer (NaN, infinities, magnitudes of 2^63 and more). The product and the sum are each rounded to a
/// double, so that every processor stores the same number.
[[nodiscard]] std::uint32_t scaledBits(double value, std::uint32_t factor);

/// A double as the 32-bit fixed-point number that stands for it: the value times the factor, rounded by adding one half
/// and truncating toward zero; beyond 32 bits it wraps.
///
/// Unsigned numbers take a negative value as 0. Signed numbers have no such rule: with the factor 1000000, -0.3 gives
/// -299999, since truncation is toward zero on either side. Defined for unsigned int and int.
/// \param factor  a whole number from 1 to 2^32 - 1
template <class Number>
[[nodiscard]] Number to_fixed(double value, double factor);

template <>
[[nodiscard]] inline unsigned int to_fixed<unsigned int>(double value, double factor) {
    return value < 0.0 ? 0U : scaledBits(value, static_cast<std::uint32_t>(factor));
}

template <>
[[nodiscard]] inline int to_fixed<int>(double value, double factor) {
    return static_cast<int>(scaledBits(value, static_cast<std::uint32_t>(factor)));
}

/// The integer next to `value * factor`; of two that are equally near, the one further from zero. Nothing where the
/// value is NaN or infinite or the factor is 0, and where the integer has a magnitude of 2^33 or more. The product is
/// rounded to a double first, so that every processor gives the same.
[[nodiscard]] std::optional<std::int64_t> nearestStep(double value, std::uint32_t factor);

/// The same as the number that is stored; nothing when it does not fit. Defined for unsigned int and int.
template <class Number>
[[nodiscard]] std::optional<Number> checkedFixed(double value, std::uint32_t factor) {
    const std::optional<std::int64_t> step = nearestStep(value, factor);
    const bool fits =
        step && *step >= std::numeric_limits<Number>::min() && *step <= std::numeric_limits<Number>::max();
    return fits ? std::optional<Number>(static_cast<Number>(*step)) : std::nullopt;
}

/// The double next to `stored / factor`; of two that are equally near, the one whose last bit is 0. Computed with
/// integers.
/// \param factor  at least 1
[[nodiscard]] double quotient(std::uint32_t stored, std::uint32_t factor);

/// Whether the processor rounds a quotient of doubles to a double at once. x87 has registers with more bits: it rounds
/// to those, and once more where the result is stored.
inline constexpr bool roundsOnce = FLT_EVAL_METHOD == 0 || FLT_EVAL_METHOD == 1;

/// The double that a fixed-point number stands for: the same on every processor.
/// \param factor  as for `to_fixed`
template <class Number>
[[nodiscard]] double from_fixed(Number stored, double factor) {
    if constexpr (roundsOnce) {
        return static_cast<double>(stored) / factor;
    } else {
        const auto bits = static_cast<std::uint32_t>(stored);
        const auto divisor = static_cast<std::uint32_t>(factor);
        return stored < 0 ? -quotient(0U - bits, divisor) : quotient(bits, divisor);
    }
}

/// A whole table of numbers, entry by entry; any length.
template <class Number>
[[nodiscard]] std::vector<Number> to_fixed(const std::vector<double>& values, double factor) {
    std::vector<Number> stored;
    stored.reserve(values.size());
    for (const double value : values) {
        stored.push_back(to_fixed<Number>(value, factor));
    }
    return stored;
}

template <class Number>
[[nodiscard]] std::vector<double> from_fixed(const std::vector<Number>& stored, double factor) {
    std::vector<double> values;
    values.reserve(stored.size());
    for (const Number number : stored) {
        values.push_back(from_fixed(number, factor));
    }
    return values;
}

}  // namespace lv::detail

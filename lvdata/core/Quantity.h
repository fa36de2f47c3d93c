#pragma once

#include <cstdint>
#include <string_view>

namespace lv {

/// What a stored number stands for: the value is the stored integer divided by the factor, in the unit.
struct Quantity {
    /// The name of the constant, such as "gain".
    std::string_view name{};

    /// The stored integer is the value times this: 1 for an unscaled number.
    std::uint32_t factor = 1;

    /// The unit of the value. Empty: no unit, for example a ratio. `unknownUnit`: the records do not state it.
    std::string_view unit{};

    /// What the value is, in a few words.
    std::string_view meaning{};

    /// Each quantity has a different name.
    friend constexpr bool operator==(const Quantity& left, const Quantity& right) { return left.name == right.name; }

    /// The opposite of `==`.
    friend constexpr bool operator!=(const Quantity& left, const Quantity& right) { return !(left == right); }
};

/// The unit of a quantity whose unit is not recorded: only the application knows it.
inline constexpr std::string_view unknownUnit = "unknown";

}  // namespace lv

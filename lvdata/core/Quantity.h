#pragma once

#include <cstdint>

namespace lv {

/// What a stored number stands for: the value is the stored integer divided by the factor, in the unit.
struct Quantity {
    /// The name of the constant, such as "gain".
    const char* name;

    /// The stored integer is the value times this: 1 for a number that is stored as it is.
    std::uint32_t factor;

    /// The unit of the value. Empty: it has none, as a ratio. `unknownUnit`: the records do not say.
    const char* unit;

    /// What the value is, in a few words.
    const char* meaning;
};

/// The unit of a quantity whose unit is recorded nowhere, so that only the application knows it.
inline constexpr const char* unknownUnit = "unknown";

}  // namespace lv

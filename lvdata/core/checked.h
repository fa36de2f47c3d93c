#pragma once

#include <lvdata/core/Quantity.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>
#include <lvdata/xml/property.h>

#include <vector>

/// Setters that answer whether a value can be stored.
///
/// The setters of the records whose names end in `_x` store every value: too large ones wrap, NaN becomes 0, and
/// negative ones drift (see lvdata/core/quantities.h). For values that come from a user or an instrument, call these
/// functions instead. They take the member itself and its quantity, which the member's comment names:
///
///     if (!lv::trySet(parameter.redGain, gain, lv::quantities::gain)) ...
///     if (!lv::trySet(parameter.redLUT, curve, parameter.tableQuantity())) ...
///     if (!lv::trySetColour(row.XYZ, measured, lv::quantities::tristimulus)) ...
///     if (!lv::trySetChromaticity(whitePoint.x, whitePoint.y, measured)) ...
///
/// - What is stored is the integer next to the value times the factor of the quantity: with the factor 1000000, -0.7 is
///   -700000. Half-way between two integers it is the one further from zero.
/// - The answer is false when a value is NaN or infinite, when its integer does not fit the member (unsigned: 0 to
///   4294967295, signed: -2147483648 to 2147483647), and when an array has a length that the member is not written
///   with. Then nothing is changed.
/// - The answer is true when everything is stored. A `property` then has its flag set, too.
///
/// No other range is checked: whether a brightness of 5000 makes sense, the application knows. Types and flags of other
/// members stay as they are. When memory runs out (`std::bad_alloc`), nothing is changed. The functions keep no state:
/// threads may call them at the same time, each for a record of its own.
namespace lv {

/// Stores a value as an unsigned number.
[[nodiscard]] LVDATA_EXPORT bool trySet(unsigned int& member, double value, const Quantity& quantity);

/// Stores a value as a signed number.
[[nodiscard]] LVDATA_EXPORT bool trySet(int& member, double value, const Quantity& quantity);

/// Replaces an array of unsigned numbers. Arrays of these quantities take only the lengths that records write:
///
/// | Quantity | Lengths |
/// |---|---|
/// | `codeValue`, `tristimulus`, `cielab`, `pqr` | 3 |
/// | `inkAmount` | 4 |
/// | `matrixEntry` | 9 |
/// | `tableEntry`, `hdrTableEntry` | 256, 1024 |
///
/// Arrays of all others, such as curves and maps, take any length.
[[nodiscard]] LVDATA_EXPORT bool trySet(std::vector<unsigned int>& member, const std::vector<double>& values,
                                        const Quantity& quantity);

/// Replaces an array of signed numbers, with the same lengths.
[[nodiscard]] LVDATA_EXPORT bool trySet(std::vector<int>& member, const std::vector<double>& values,
                                        const Quantity& quantity);

/// Replaces an array by a colour. The quantity decides which members of the colour are stored: `codeValue` RGB,
/// `inkAmount` CMYK, `tristimulus` and `pqr` X, Y and Z, `cielab` L*, a* and b*. False for any other quantity.
[[nodiscard]] LVDATA_EXPORT bool trySetColour(std::vector<unsigned int>& member, const colour& value,
                                              const Quantity& quantity);

/// Replaces an array of signed numbers by a colour.
[[nodiscard]] LVDATA_EXPORT bool trySetColour(std::vector<int>& member, const colour& value, const Quantity& quantity);

/// Stores the members `x` and `y` of a colour as `quantities::chromaticity` in the two members of a white point or a
/// primary: both or, when one of them does not fit, none.
[[nodiscard]] LVDATA_EXPORT bool trySetChromaticity(unsigned int& x, unsigned int& y, const colour& value);

/// The same for a property, whose flag is then set: of a number.
template <class Number>
[[nodiscard]] bool trySet(property<Number>& member, double value, const Quantity& quantity) {
    const bool isStored = trySet(member.value, value, quantity);
    member.hasValue = member.hasValue || isStored;
    return isStored;
}

/// The same for a property of an array.
template <class Number>
[[nodiscard]] bool trySet(property<std::vector<Number>>& member, const std::vector<double>& values,
                          const Quantity& quantity) {
    const bool isStored = trySet(member.value, values, quantity);
    member.hasValue = member.hasValue || isStored;
    return isStored;
}

/// The same for a property of an array that is a colour.
template <class Number>
[[nodiscard]] bool trySetColour(property<std::vector<Number>>& member, const colour& value, const Quantity& quantity) {
    const bool isStored = trySetColour(member.value, value, quantity);
    member.hasValue = member.hasValue || isStored;
    return isStored;
}

}  // namespace lv

#pragma once

#include <lvdata/core/Quantity.h>
#include <lvdata/core/colour.h>
#include <lvdata/export.h>
#include <lvdata/xml/property.h>

#include <vector>

/// Setters that check whether a value can be stored, and return the answer.
///
/// The setters of the records whose names end in `_x` store every value: too large ones wrap, NaN becomes 0, and
/// negative ones drift (see lvdata/core/quantities.h). For values that come from a user or an instrument, call these
/// functions instead. Their arguments are the member itself and its quantity, which is named in the member's comment:
///
///     if (!lv::trySet(parameter.redGain, gain, lv::quantities::gain)) ...
///     if (!lv::trySet(parameter.redLUT, curve, parameter.tableQuantity())) ...
///     if (!lv::trySetColour(row.XYZ, measured, lv::quantities::tristimulus)) ...
///     if (!lv::trySetChromaticity(whitePoint.x, whitePoint.y, measured)) ...
///
/// - The stored number is the value times the factor of the quantity, rounded to the nearest integer: with the factor
///   1000000, -0.7 is -700000. A value half-way between two integers is rounded away from zero.
/// - The answer is false when a value is NaN or infinite, when its integer does not fit the member (unsigned: 0 to
///   4294967295, signed: -2147483648 to 2147483647), and when an array has a length that the member is not written
///   with. Nothing is changed then.
/// - The answer is true when everything is stored. The flag of a `property` is then set, too.
///
/// No other range is checked: only the application knows whether a brightness of 5000 makes sense. Types and flags of
/// other members do not change. When memory runs out (`std::bad_alloc`), nothing is changed. The functions keep no
/// state: several threads may call them at the same time, each for a different record.
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
/// primary: both of them, or none if one does not fit.
[[nodiscard]] LVDATA_EXPORT bool trySetChromaticity(unsigned int& x, unsigned int& y, const colour& value);

/// The same for a property that holds a number. Its flag is then set.
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

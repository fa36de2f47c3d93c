#pragma once

#include <lvdata/core/Quantity.h>

/// The quantities that the records store, and the rules of their fixed-point numbers.
///
/// Records and documents hold a fraction as an integer: the value times a factor. Accessors whose names end in `_x`
/// convert with the factors of these constants, and the descriptions of the records name the constants. All accessors
/// follow the same rules.
///
/// A getter returns the stored integer divided by the factor, as a double. It does not look at the member's flag.
///
/// A setter stores the value times the factor plus 0.5, truncated toward zero. It never fails and checks no range;
/// lvdata/core/checked.h has setters that do:
///
/// - A negative value is stored as 0 in an unsigned number.
/// - A signed number (XYZ, CIELAB and PQR of a measurement, the emulation matrix) takes negative values. One half is
///   added to them, too, so they are stored one step closer to zero than rounding gives: with the factor 1000000, -0.7
///   becomes -699999. Each time such a number is read and set again, it moves one step toward zero.
/// - A result that does not fit into 32 bits wraps: its low 32 bits are stored. With the factor 1000000 an unsigned
///   number holds values up to 4294.967295, a signed one up to 2147.483647 and then reads back as negative: a Y of 4000
///   in a measurement comes back as -294.967296.
/// - NaN, infinities and products of 2^63 and more in magnitude are stored as 0.
namespace lv::quantities {

/// A number that is stored unscaled. Its unit and its meaning are not recorded: the application defines them.
inline constexpr Quantity number = {"number", 1, unknownUnit, "defined by the application"};

/// One of the two version numbers of a record.
inline constexpr Quantity version = {"version", 1, "", "version number of the record's format"};

/// A number that only identifies something: an index, the identifier of a sensor, a kind of schedule.
inline constexpr Quantity identifier = {"identifier", 1, "", "a number that identifies something"};

/// One of R, G and B as a fraction of the code value 255.
inline constexpr Quantity codeValue = {"codeValue", 255, "", "RGB code value as a fraction of 255"};

/// One of C, M, Y and K as a fraction, stored in per cent.
inline constexpr Quantity inkAmount = {"inkAmount", 100, "", "CMYK amount as a fraction of 100 %"};

/// One of CIE X, Y and Z. Unit not recorded: Y may be absolute, in cd/m², or relative.
inline constexpr Quantity tristimulus = {"tristimulus", 1000000, unknownUnit, "CIE XYZ tristimulus value"};

/// One of CIE L*, a* and b*.
inline constexpr Quantity cielab = {"cielab", 1000000, "", "CIELAB L*, a* or b*"};

/// One of P, Q and R, a second triple of values in a measurement. What they mean is not recorded.
inline constexpr Quantity pqr = {"pqr", 1000000, unknownUnit, "P, Q or R, defined by the application"};

/// A CIE 1931 chromaticity coordinate x or y.
inline constexpr Quantity chromaticity = {"chromaticity", 10000, "", "CIE 1931 chromaticity coordinate"};

/// The exponent of a tone curve.
inline constexpr Quantity gamma = {"gamma", 100, "", "exponent of a tone curve"};

/// The system gamma of HLG (ITU-R BT.2100).
inline constexpr Quantity hlgSystemGamma = {"hlgSystemGamma", 100, "", "system gamma of HLG, ITU-R BT.2100"};

/// An entry of a tone curve of 16 bits.
inline constexpr Quantity curveEntry16 = {"curveEntry16", 65535, "", "tone curve entry as a fraction of 65535"};

/// An entry of a tone curve of 24 bits.
inline constexpr Quantity curveEntry24 = {"curveEntry24", 16777215, "", "tone curve entry as a fraction of 16777215"};

/// The parameter of a target curve that is given by a formula. Its meaning is not recorded.
inline constexpr Quantity curveParameter = {"curveParameter", 1000000, unknownUnit, "parameter of a target curve"};

/// An entry of a target curve that is given by a table.
inline constexpr Quantity curveEntry = {"curveEntry", 1000000, "", "entry of a target curve"};

/// An entry of a look-up table of the monitor, at the normal scale.
inline constexpr Quantity tableEntry = {"tableEntry", 1000000, "", "look-up table entry as a fraction"};

/// An entry of a look-up table of the monitor, at the HDR scale: when the value of `MonitorParameter::isHDRLUT` is 1.
inline constexpr Quantity hdrTableEntry = {"hdrTableEntry", 1000000000, "", "look-up table entry as a fraction"};

/// A gain of one channel.
inline constexpr Quantity gain = {"gain", 1000000, "", "gain of a channel"};

/// An entry of the emulation matrix.
inline constexpr Quantity matrixEntry = {"matrixEntry", 1000000, "", "entry of the emulation matrix"};

/// A brightness of the type "Candela". It is not recorded whether that means cd/m².
inline constexpr Quantity candela = {"candela", 1, "candela", "brightness"};

/// A brightness of the type "Percent".
inline constexpr Quantity percent = {"percent", 1, "%", "brightness in per cent"};

}  // namespace lv::quantities

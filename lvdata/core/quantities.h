#pragma once

#include <lvdata/core/Quantity.h>

/// The quantities that the records store. The `_x` accessors convert with the factor of these constants, and the
/// descriptions of the records name them.
///
/// Every conversion follows the same rules. A getter divides the stored integer by the factor and does not look at the
/// flag. A setter stores the value times the factor plus 0.5, truncated toward zero:
///
/// - In unsigned numbers negative values are stored as 0.
/// - Signed numbers keep their sign. Since one half is added on either side of zero, -0.7 with the factor 1000000 is
///   stored as -699999, and a negative number that is read and set again moves toward zero by one step each time.
/// - Nothing is limited: a result that needs more than 32 bits keeps its low 32 bits. With the factor 1000000 that is
///   anything from 4294.967296 for unsigned numbers. For signed ones it is anything from 2147.483648, which then reads
///   as a negative value: a Y of 4000 is read as -294.967296.
/// - NaN, infinities and products of 2^63 and more are stored as 0.
namespace lv::quantities {

/// A number whose factor is 1 and whose unit and meaning are the application's.
inline constexpr Quantity number = {"number", 1, unknownUnit, "defined by the application"};

/// One of the version numbers of a record.
inline constexpr Quantity version = {"version", 1, "", "version number of the record's format"};

/// A number that only tells things apart, such as an index, a sensor's identifier or a kind of schedule.
inline constexpr Quantity identifier = {"identifier", 1, "", "a number that identifies something"};

/// One of R, G and B as a fraction of the code value 255.
inline constexpr Quantity codeValue = {"codeValue", 255, "", "RGB code value as a fraction of 255"};

/// One of C, M, Y and K as a fraction, stored in per cent.
inline constexpr Quantity inkAmount = {"inkAmount", 100, "", "CMYK amount as a fraction of 100 %"};

/// One of CIE X, Y and Z. Whether Y is absolute, in cd/m², is not recorded.
inline constexpr Quantity tristimulus = {"tristimulus", 1000000, unknownUnit, "CIE XYZ tristimulus value"};

/// One of CIE L*, a* and b*.
inline constexpr Quantity cielab = {"cielab", 1000000, "", "CIELAB L*, a* or b*"};

/// One of P, Q and R, a second triple of the measurements whose meaning is the application's.
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

/// The one parameter of a target curve that is given by a formula.
inline constexpr Quantity curveParameter = {"curveParameter", 1000000, unknownUnit, "parameter of a target curve"};

/// An entry of a target curve that is given by a table.
inline constexpr Quantity curveEntry = {"curveEntry", 1000000, "", "entry of a target curve"};

/// An entry of a look-up table of the monitor.
inline constexpr Quantity tableEntry = {"tableEntry", 1000000, "", "look-up table entry as a fraction"};

/// An entry of a look-up table of the monitor that is stored at the HDR scale.
inline constexpr Quantity hdrTableEntry = {"hdrTableEntry", 1000000000, "", "look-up table entry as a fraction"};

/// A gain of one channel.
inline constexpr Quantity gain = {"gain", 1000000, "", "gain of a channel"};

/// An entry of the emulation matrix.
inline constexpr Quantity matrixEntry = {"matrixEntry", 1000000, "", "entry of the emulation matrix"};

/// A brightness of the type "Candela". The record says no more than that word.
inline constexpr Quantity candela = {"candela", 1, "candela", "brightness"};

/// A brightness of the type "Percent".
inline constexpr Quantity percent = {"percent", 1, "%", "brightness in per cent"};

}  // namespace lv::quantities

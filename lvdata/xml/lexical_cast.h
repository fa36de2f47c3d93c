#pragma once

#include <lvdata/export.h>

#include <string>

namespace lv {

/// The number at the start of a text.
///
/// The accepted text is the same as for formatted extraction from a stream in the classic "C" locale, whatever locale
/// the application has set: leading white space (space, tab, line feed, vertical tab, form feed, carriage return) is
/// skipped, one sign may follow, then decimal digits up to the first other character; the rest is ignored.
///
/// No call fails, throws or reports an error:
/// - text without a leading digit ("abc", "-", "+-5") and whitespace-only text give 0;
/// - a number beyond the range gives the nearest limit of the type;
/// - an unsigned number may have a minus sign: its magnitude is negated modulo 2^32, so "-1" gives 4294967295, while a
///   magnitude beyond 4294967295 gives 4294967295 with either sign.
///
/// So a caller cannot distinguish bad text from a real 0. May be called from any thread; no state is kept between
/// calls.
template <class Target>
Target lexical_cast(std::string text) = delete;

/// The signed number that the text begins with, by the rules above: "12abc" gives 12, "abc" gives 0, "99999999999"
/// gives 2147483647.
template <>
[[nodiscard]] LVDATA_EXPORT int lexical_cast<int>(std::string text);

/// The unsigned number that the text begins with, by the rules above: "12abc" gives 12, "abc" gives 0, and "-1" gives
/// the largest number.
template <>
[[nodiscard]] LVDATA_EXPORT unsigned int lexical_cast<unsigned int>(std::string text);

/// The number's plain decimal text: a leading minus sign if it is negative, no plus sign, no leading zeros, no white
/// space and no digit grouping.
template <class Target>
Target lexical_cast(int value) = delete;

/// The same for an unsigned number.
template <class Target>
Target lexical_cast(unsigned int value) = delete;

/// The plain decimal text of a signed number: "-17", "0".
template <>
[[nodiscard]] LVDATA_EXPORT std::string lexical_cast<std::string>(int value);

/// The plain decimal text of an unsigned number: "4294967295".
template <>
[[nodiscard]] LVDATA_EXPORT std::string lexical_cast<std::string>(unsigned int value);

}  // namespace lv

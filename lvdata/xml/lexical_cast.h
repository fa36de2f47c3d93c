#pragma once

#include <lvdata/export.h>

#include <string>

namespace lv {

/// Converts between a number and its text.
///
/// Accepted number text is what formatted extraction from a stream in the classic "C" locale accepts, whatever locale
/// the application has set: leading white space (space, tab, line feed, vertical tab, form feed, carriage return) is
/// skipped, one sign may follow, then decimal digits up to the first other character; the rest is ignored.
///
/// No call fails, throws or reports an error:
/// - text without a leading digit ("abc", "-", "+-5") and whitespace-only text give 0;
/// - a number beyond the range gives the nearest limit of the type;
/// - an unsigned number may carry a minus sign: its magnitude is negated modulo 2^32, so "-1" gives 4294967295, while a
///   magnitude beyond 4294967295 gives 4294967295 with either sign.
///
/// A caller can therefore not tell bad text from a real 0. May be called from any thread; nothing is kept between
/// calls.
template <class Target>
Target lexical_cast(std::string text) = delete;

/// \copydoc lexical_cast(std::string)
template <>
[[nodiscard]] LVDATA_EXPORT int lexical_cast<int>(std::string text);

/// \copydoc lexical_cast(std::string)
template <>
[[nodiscard]] LVDATA_EXPORT unsigned int lexical_cast<unsigned int>(std::string text);

/// The number's plain decimal text: a leading minus sign where it is negative, no plus sign, no leading zeros, no white
/// space and no digit grouping.
template <class Target>
Target lexical_cast(int value) = delete;

/// \copydoc lexical_cast(int)
template <class Target>
Target lexical_cast(unsigned int value) = delete;

/// \copydoc lexical_cast(int)
template <>
[[nodiscard]] LVDATA_EXPORT std::string lexical_cast<std::string>(int value);

/// \copydoc lexical_cast(int)
template <>
[[nodiscard]] LVDATA_EXPORT std::string lexical_cast<std::string>(unsigned int value);

}  // namespace lv

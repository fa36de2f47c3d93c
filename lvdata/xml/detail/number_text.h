#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lv::detail {

/// The number at the start of `text`, read where it lies; `lexical_cast` states the rules.
/// Defined for int and unsigned int. (g++ exports specialisations whatever the file's default says, hence the
/// attribute.)
template <class Number>
[[nodiscard, gnu::visibility("hidden")]] Number parseNumber(std::string_view text);

/// Replaces `out` by the numbers of the pieces of `text` between the separators, in order; empty pieces are skipped.
/// `split_string` states where a piece ends. Nothing is copied, and `out` is sized once for the usual separator of one
/// character. Defined for int and unsigned int.
template <class Number>
void parseNumbers(std::string_view text, std::string_view separator, std::vector<Number>& out);

/// The decimal texts of all values, joined by the separator, in one buffer. Defined for int and unsigned int.
template <class Number>
[[nodiscard]] std::string joinNumbers(const std::vector<Number>& values, std::string_view separator);

/// Appends the decimal text of `value` to `text`; allocates only where `text` has to grow.
void appendNumber(std::string& text, int value);
void appendNumber(std::string& text, unsigned int value);

/// The decimal text of `value`: short enough for a string to hold it without allocating.
template <class Number>
[[nodiscard]] std::string decimalText(Number value) {
    std::string text;
    appendNumber(text, value);
    return text;
}

}  // namespace lv::detail

#pragma once

#include <string>
#include <string_view>

namespace lv::detail {

/// The number at the start of `text`, read where it lies; `lexical_cast` states the rules.
/// Defined for int and unsigned int. (g++ exports specialisations whatever the file's default says, hence the
/// attribute.)
template <class Number>
[[nodiscard, gnu::visibility("hidden")]] Number parseNumber(std::string_view text);

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

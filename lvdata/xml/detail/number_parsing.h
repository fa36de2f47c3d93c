#pragma once

#include <string_view>
#include <vector>

namespace lv::detail {

/// The number at the start of `text`, read where it lies; `lexical_cast` states the rules.
/// Defined for int and unsigned int. (g++ exports specialisations whatever the file's default says, hence the
/// attribute.)
template <class Number>
[[nodiscard, gnu::visibility("hidden")]] Number parseNumber(std::string_view text);

/// Replaces `out` by the numbers of the pieces of `text` between the separators, in order; empty pieces are skipped.
/// `split_string` states where a piece ends. Nothing is copied, and `out` gets exactly the memory it needs where the
/// numbers are plain ones. Defined for int and unsigned int.
template <class Number>
void parseNumbers(std::string_view text, std::string_view separator, std::vector<Number>& out);

/// The same for a text that holds nothing but plain numbers (digits, at most with a minus before them) and separators.
/// False when anything else stands in it. Then `out` may hold some of the numbers, but it is untouched when the text
/// begins with something else. The separator is not a digit.
template <class Number>
[[nodiscard]] bool parsePlainNumbers(std::string_view text, char separator, std::vector<Number>& out);

}  // namespace lv::detail

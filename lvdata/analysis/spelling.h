#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// The one of several words that was probably meant by a misspelt word, ignoring case; null when none is close. Time is
/// proportional to the length of all words.
[[nodiscard]] const std::string* closest(std::string_view word, const std::vector<std::string>& words);

}  // namespace lv::analysis

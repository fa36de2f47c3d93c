#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lv::analysis {

/// Of several words the one that was probably meant by a misspelt one, whatever its upper and lower case; null when
/// none is close. The time goes with the length of all words.
[[nodiscard]] const std::string* closest(std::string_view word, const std::vector<std::string>& words);

}  // namespace lv::analysis

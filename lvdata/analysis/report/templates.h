#pragma once

#include <string_view>
#include <utility>
#include <vector>

namespace lv::analysis {

/// The templates of HTML by their names, each a file of the folder "templates".
[[nodiscard]] const std::vector<std::pair<std::string_view, std::string_view>>& templates();

/// The style sheet of pages.
[[nodiscard]] std::string_view pageStyle();

/// The script of pages.
[[nodiscard]] std::string_view pageScript();

}  // namespace lv::analysis

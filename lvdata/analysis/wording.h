#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lv::analysis {

/// The text, shortened, because texts can be as long as the document.
[[nodiscard]] std::string excerpt(std::string_view text);

/// The same in quotation marks.
[[nodiscard]] std::string inQuotes(std::string_view text);

/// The line of that position in a text, counted from 1.
[[nodiscard]] int lineAt(std::string_view text, std::size_t position);

}  // namespace lv::analysis

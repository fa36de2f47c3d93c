#pragma once

#include <string>
#include <string_view>

namespace lv::analysis {

/// The text, cut after some characters: texts can be as long as the document.
[[nodiscard]] std::string excerpt(std::string_view text);

/// The same in quotation marks.
[[nodiscard]] std::string inQuotes(std::string_view text);

}  // namespace lv::analysis

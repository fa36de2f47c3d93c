#pragma once

#include <string>
#include <string_view>

namespace lv::analysis {

/// The text in quotation marks, cut after some characters: texts can be as long as the document.
[[nodiscard]] std::string quoted(std::string_view text);

}  // namespace lv::analysis

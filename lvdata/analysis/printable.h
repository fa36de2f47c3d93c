#pragma once

#include <string>
#include <string_view>

namespace lv::analysis {

/// The text made safe for one line of a terminal: control characters, line separators, characters that reorder text
/// (U+202E and the like) and bytes that are not UTF-8 become "\x" and two hexadecimal digits a byte; everything else is
/// unchanged.
[[nodiscard]] std::string printable(std::string_view text);

}  // namespace lv::analysis

#pragma once

#include <cstddef>
#include <string_view>

namespace lv::analysis {

/// The number of bytes of the UTF-8 character that the text begins with; 0 when it begins with none. As in RFC 3629: no
/// surrogates, nothing beyond U+10FFFF, no more bytes than needed.
[[nodiscard]] std::size_t characterLength(std::string_view text);

/// Whether all of the text is UTF-8.
[[nodiscard]] bool isUTF8(std::string_view text);

}  // namespace lv::analysis

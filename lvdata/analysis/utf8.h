#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lv::analysis {

/// The number of bytes of the UTF-8 character that the text begins with; 0 when it begins with none. As in RFC 3629: no
/// surrogates, nothing beyond U+10FFFF, no more bytes than needed.
[[nodiscard]] std::size_t characterLength(std::string_view text);

/// The position of the first byte that is not part of a UTF-8 character; npos when all are.
[[nodiscard]] std::size_t findInvalidUTF8(std::string_view text);

/// Whether all of the text is UTF-8.
[[nodiscard]] inline bool isUTF8(std::string_view text) {
    return findInvalidUTF8(text) == std::string_view::npos;
}

/// The text with U+FFFD in place of each byte that is not part of a UTF-8 character, for messages.
[[nodiscard]] std::string inUTF8(std::string_view text);

}  // namespace lv::analysis

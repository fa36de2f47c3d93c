#pragma once

#include <cstddef>
#include <string_view>

namespace lv::analysis {

/// The position of the first byte that is not part of a character of UTF-8 (RFC 3629: no surrogates, no longer form
/// than needed, at most U+10FFFF); npos when all are.
[[nodiscard]] std::size_t findInvalidUTF8(std::string_view text);

}  // namespace lv::analysis

#pragma once

#include <lvdata/core/Description.h>

namespace lv::analysis {

/// Whether the content is several numbers, joined by "|".
[[nodiscard]] constexpr bool isArray(Description::Content content) {
    return content == Description::Content::unsignedArray || content == Description::Content::signedArray;
}

/// Whether the content is a number or several numbers.
[[nodiscard]] constexpr bool isNumeric(Description::Content content) {
    return content == Description::Content::unsignedNumber || content == Description::Content::signedNumber ||
           isArray(content);
}

/// Whether the content is numbers that may be negative.
[[nodiscard]] constexpr bool isSigned(Description::Content content) {
    return content == Description::Content::signedNumber || content == Description::Content::signedArray;
}

}  // namespace lv::analysis

#pragma once

#include <tests/support/round_trip.h>

#include <lvdata/records/AssetInfo.h>

#include <cstddef>
#include <string>

namespace lv::test {

[[nodiscard]] inline std::string repeated(const std::string& text, std::size_t count) {
    std::string result;
    result.reserve(text.size() * count);
    for (std::size_t index = 0; index < count; ++index) {
        result += text;
    }
    return result;
}

/// A document of AssetInfo whose "Asset1" holds this, written as markup has it.
[[nodiscard]] inline std::string documentWithAsset1(const std::string& markup) {
    return documentOf<AssetInfo>("<Asset1>" + markup + "</Asset1>");
}

}  // namespace lv::test

#pragma once

#include <tests/support/repeated.h>
#include <tests/support/round_trip.h>

#include <lvdata/records/AssetInfo.h>

#include <string>

namespace lv::test {

/// A document of AssetInfo whose "Asset1" holds this, written as markup has it.
[[nodiscard]] inline std::string documentWithAsset1(const std::string& markup) {
    return documentOf<AssetInfo>("<Asset1>" + markup + "</Asset1>");
}

}  // namespace lv::test

#pragma once

#include <string>

namespace lv::test {

/// A document with this markup, on its second line, before "Asset1".
[[nodiscard]] inline std::string documentWithMarkup(const std::string& markup) {
    return "<AssetInfo>\n" + markup + "<Asset1>one</Asset1></AssetInfo>";
}

}  // namespace lv::test

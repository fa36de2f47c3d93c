#pragma once

#include <tests/bounds/documents.h>
#include <tests/support/samples.h>

// What the XML library takes time for with the square of its number.

namespace lv::test {

/// An unknown element with attributes of different names, in a document with an "Asset1" after it.
[[nodiscard]] inline std::string documentWithAttributes(int count, const std::string& further = "") {
    std::string element = "<a";
    for (int attribute = 0; attribute < count; ++attribute) {
        element += " a" + std::to_string(attribute) + "=''";
    }
    return documentOf<AssetInfo>(element + further + "/><Asset1>one</Asset1>");
}

inline void expectAttributesArePassedOver(int count) {
    AssetInfo expected;
    expected.asset1.set("one");
    EXPECT_EQ(describe(parsed<AssetInfo>(documentWithAttributes(count))), describe(expected));
}

inline void expectBrokenReferencesLoseOneAmpersand(std::size_t count) {
    const auto record = parsed<AssetInfo>(documentWithAsset1(repeated("&#", count)));
    EXPECT_TRUE(record.asset1.hasValue);
    EXPECT_TRUE(record.asset1.value == repeated("&#", count - 1) + "#");  // not EXPECT_EQ, which would print it
}

}  // namespace lv::test

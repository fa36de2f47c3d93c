#pragma once

#include <tests/bounds/documents.h>
#include <tests/support/refusal.h>
#include <tests/support/samples.h>

#include <lvdata/records/ParameterSetting.h>

// One text of this many bytes: read, written, ignored, refused.

namespace lv::test {

inline void expectLongTextIsKept(std::size_t size) {
    const std::string text(size, 'x');
    const auto record = parsed<AssetInfo>(documentWithAsset1(text));
    EXPECT_TRUE(record.asset1.value == text);  // not EXPECT_EQ, which would print it
    EXPECT_TRUE(parsed<AssetInfo>(compact(record)).asset1.value == text);
}

inline void expectLongAttributeIsKept(std::size_t size) {
    const std::string text(size, 'x');
    const std::string document = documentOf<ParameterSetting>("<Brightness Type='" + text + "'/>");
    const auto record = parsed<ParameterSetting>(document);
    EXPECT_TRUE(record.brightness.value.type == text);
    EXPECT_TRUE(parsed<ParameterSetting>(compact(record)).brightness.value.type == text);
    EXPECT_EQ(record.gamut.hasValue, false);
}

inline void expectLongUnknownAttributeIsPassedOver(std::size_t size) {
    const std::string attribute = " a='" + std::string(size, 'x') + '\'';
    AssetInfo expected;
    expected.asset1.set("one");
    const auto record = parsed<AssetInfo>("<AssetInfo><Asset1" + attribute + ">one</Asset1></AssetInfo>");
    EXPECT_EQ(describe(record), describe(expected));
}

inline void expectEndlessTextIsRefused(std::size_t size) {
    const std::string text(size, 'x');
    for (const std::string start : {"<AssetInfo><Asset1>", "<AssetInfo a='", "<", "<!-- ", "<![CDATA[", "<?", ""}) {
        expectRefusedUnchanged(filled<AssetInfo>(), start + text);
    }
}

inline void expectLongTextIsHandled(std::size_t size) {
    expectLongTextIsKept(size);
    expectLongAttributeIsKept(size);
    expectLongUnknownAttributeIsPassedOver(size);
    expectEndlessTextIsRefused(size);
}

}  // namespace lv::test

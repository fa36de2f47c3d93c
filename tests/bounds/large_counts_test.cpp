#include <tests/bounds/slow_markup.h>
#include <tests/support/refusal.h>
#include <tests/support/samples.h>

#include <lvdata/records/MeasurementData.h>

// Many elements, rows, attributes, references.

namespace lv::test {
namespace {

TEST(AMillionElements, AreIgnoredWhenTheirNameIsUnknown) {
    const std::string unknown = repeated("<a/>", 500'000);
    const auto record = parsedFrom<AssetInfo>(unknown + "<Asset1>one</Asset1>" + unknown + "<Asset2>two</Asset2>");
    AssetInfo expected;
    expected.asset1.set("one");
    expected.asset2.set("two");
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(AMillionElements, OfOneNameGiveTheFirst) {
    const auto record = parsedFrom<AssetInfo>("<Asset1>first</Asset1>" + repeated("<Asset1>x</Asset1>", 1'000'000));
    AssetInfo expected;
    expected.asset1.set("first");
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(AMillionElements, AreRefusedWhenTheLastIsNotClosed) {
    expectRefusedUnchanged(filled<AssetInfo>(), documentOf<AssetInfo>(repeated("<a/>", 1'000'000) + "<a>"));
}

TEST(ManyRows, AreAllReadInTheirOrder) {
    constexpr int count = 100'000;
    std::string rows;
    for (int row = 0; row < count; ++row) {
        rows += "<Measurements><XYZ>" + std::to_string(row) + "|2|3</XYZ></Measurements><a/>";
    }
    const auto record = parsedFrom<MeasurementData>(rows);
    ASSERT_EQ(record.objects.size(), std::size_t{count});
    for (int row = 0; row < count; ++row) {
        ASSERT_EQ(record.objects[static_cast<std::size_t>(row)].XYZ, (std::vector<int>{row, 2, 3}));
    }
}

// The XML library compares each name with all before it, so larger numbers only take longer.
constexpr int manyAttributes = 2'000;

TEST(ManyAttributes, AreIgnored) {
    expectAttributesAreIgnored(manyAttributes);
}

TEST(ManyAttributes, AreRefusedWhenTheLastRepeatsTheFirst) {
    expectRefusedUnchanged(filled<AssetInfo>(), documentWithAttributes(manyAttributes, " a0=''"));
}

// For each "&#" the XML library looks for a ";" up to the end of the text.
TEST(ManyReferences, ThatAreBrokenStayInTheText) {
    for (const std::string text : {"&#x", "&#1", "&#z;", "&"}) {
        const std::string many = repeated(text, 5'000);
        EXPECT_EQ(parsed<AssetInfo>(documentWithAsset1(many)).asset1, (property<std::string>{many, true})) << text;
    }
}

TEST(ManyReferences, ThatAreBrokenLoseTheAmpersandOnlyAtTheEnd) {
    expectBrokenReferencesLoseOneAmpersand(5'000);
}

TEST(ManyReferences, WithoutDigitsEndTheText) {
    for (const std::string text : {"&#;", "&#x;"}) {
        EXPECT_EQ(parsed<AssetInfo>(documentWithAsset1("one" + repeated(text, 5'000))).asset1,
                  (property<std::string>{"one", true}));
    }
}

TEST(ManyReferences, AreReplacedByTheirCharacters) {
    EXPECT_EQ(parsed<AssetInfo>(documentWithAsset1(repeated("&#65;&#x42;&lt;", 300'000))).asset1,
              (property<std::string>{repeated("AB<", 300'000), true}));
}

TEST(ManyReferences, MayHaveManyDigits) {
    EXPECT_EQ(parsed<AssetInfo>(documentWithAsset1("&#" + repeated("0", 100'000) + "65;")).asset1,
              (property<std::string>{"A", true}));
}

}  // namespace
}  // namespace lv::test

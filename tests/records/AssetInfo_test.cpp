#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/AssetInfo.h>

#include <array>
#include <string>

namespace lv::test {
namespace {

struct Label {
    std::string element;
    property<std::string> AssetInfo::*member;
};

const std::array everyLabel = {Label{"Asset1", &AssetInfo::asset1}, Label{"Asset2", &AssetInfo::asset2},
                               Label{"Asset3", &AssetInfo::asset3}, Label{"Asset4", &AssetInfo::asset4},
                               Label{"Asset5", &AssetInfo::asset5}, Label{"Asset6", &AssetInfo::asset6},
                               Label{"Asset7", &AssetInfo::asset7}, Label{"Asset8", &AssetInfo::asset8}};

/// What asset1 holds after `content` stood in its element.
property<std::string> asset1From(const std::string& content) {
    return parsedFrom<AssetInfo>("<Asset1>" + content + "</Asset1>").asset1;
}

property<std::string> present(const std::string& text) {
    return {text, true};
}

/// The document that asset1 with this text is written as.
std::string writtenAsset1(const std::string& text) {
    AssetInfo record;
    record.asset1.set(text);
    return compact(record);
}

TEST(AssetInfo, DefaultRecordWritesTheRootWithItsVersionAndNoChild) {
    EXPECT_EQ(compact(AssetInfo()), R"(<AssetInfo Version="1" MinorVersion="0"/>)");
}

TEST(AssetInfo, FilledRecordWritesAllLabelsInOrder) {
    EXPECT_EQ(compact(filled<AssetInfo>()), R"(<AssetInfo Version="11" MinorVersion="12">)"
                                            "<Asset1>asset1 13</Asset1>"
                                            "<Asset2>asset2 14</Asset2>"
                                            "<Asset3>asset3 15</Asset3>"
                                            "<Asset4>asset4 16</Asset4>"
                                            "<Asset5>asset5 17</Asset5>"
                                            "<Asset6>asset6 18</Asset6>"
                                            "<Asset7>asset7 19</Asset7>"
                                            "<Asset8>asset8 20</Asset8>"
                                            "</AssetInfo>");
}

TEST(AssetInfo, EachLabelIsWrittenAloneUnderItsOwnName) {
    for (const auto& [element, member] : everyLabel) {
        AssetInfo record;
        (record.*member).set("text");
        EXPECT_EQ(compact(record), written<AssetInfo>('<' + element + ">text</" + element + '>'));
    }
}

TEST(AssetInfo, EachLabelIsReadAloneAndTheSevenOthersStayUnset) {
    for (const auto& [element, member] : everyLabel) {
        AssetInfo expected;
        (expected.*member).set("text");
        const auto record = parsedFrom<AssetInfo>('<' + element + ">text</" + element + '>');
        EXPECT_EQ(describe(record), describe(expected));
    }
}

TEST(AssetInfo, Asset3AloneSetsOnlyAsset3) {
    const auto record = parsed<AssetInfo>("<AssetInfo><Asset3>Room 3</Asset3></AssetInfo>");
    AssetInfo expected;
    expected.asset3.set("Room 3");
    EXPECT_EQ(describe(record), describe(expected));
}

TEST(AssetInfo, ChildAsset9IsIgnored) {
    const auto record = parsed<AssetInfo>("<AssetInfo><Asset9>nine</Asset9><Asset>none</Asset></AssetInfo>");
    EXPECT_EQ(describe(record), describe(AssetInfo()));
}

TEST(AssetInfo, ChildWhoseNameDiffersOnlyInCaseIsNotRead) {
    const auto record = parsed<AssetInfo>("<AssetInfo><asset1>a</asset1><ASSET1>b</ASSET1></AssetInfo>");
    EXPECT_EQ(describe(record), describe(AssetInfo()));
}

TEST(AssetInfo, UnsetLabelWithATextIsNotWritten) {
    AssetInfo record;
    record.asset5.value = "text";
    EXPECT_EQ(compact(record), compact(AssetInfo()));
}

TEST(AssetInfo, SetButEmptyLabelWritesAnEmptyElementAndComesBackSet) {
    EXPECT_EQ(writtenAsset1(""), written<AssetInfo>("<Asset1></Asset1>"));
    EXPECT_EQ(parsed<AssetInfo>(writtenAsset1("")).asset1, present(""));
}

TEST(AssetInfo, ElementWithoutTextSetsTheFlagAndKeepsTheEarlierText) {
    for (const char* element : {"<Asset1/>", "<Asset1></Asset1>", "<Asset1>  \n </Asset1>", "<Asset1><!-- --></Asset1>",
                                "<Asset1><b>text</b></Asset1>"}) {
        auto record = filled<AssetInfo>();
        record.asset1 = {"earlier", false};
        ASSERT_TRUE(record.parseXMLString(documentOf<AssetInfo>(element))) << element;
        EXPECT_EQ(record.asset1, present("earlier")) << element;
        EXPECT_FALSE(record.asset2.hasValue) << element;
    }
}

TEST(AssetInfo, MissingLabelClearsTheFlagAndKeepsTheEarlierText) {
    AssetInfo record = filled<AssetInfo>();
    ASSERT_TRUE(record.parseXMLString("<AssetInfo><Asset2>new</Asset2></AssetInfo>"));
    EXPECT_EQ(record.asset1, (property<std::string>{"asset1 13", false}));
    EXPECT_EQ(record.asset2, present("new"));
}

TEST(AssetInfo, EntitiesAndNumericReferencesAreResolved) {
    EXPECT_EQ(asset1From("&amp;&lt;&gt;&quot;&apos;"), present(R"(&<>"')"));
    EXPECT_EQ(asset1From("&#65;&#x42;&#xe9;&#8364;"), present("AB\u00e9\u20ac"));
    EXPECT_EQ(asset1From("&amp;lt;"), present("&lt;"));
}

TEST(AssetInfo, UnknownEntityStaysInTheText) {
    EXPECT_EQ(asset1From("a &unknown; b"), present("a &unknown; b"));
}

TEST(AssetInfo, MarkupCharactersAreEscapedAndComeBack) {
    const std::string text = R"(<Rack> & "Desk" 'A' ]]> &amp;)";
    EXPECT_EQ(writtenAsset1(text),
              written<AssetInfo>(R"(<Asset1>&lt;Rack&gt; &amp; "Desk" 'A' ]]&gt; &amp;amp;</Asset1>)"));
    EXPECT_EQ(parsed<AssetInfo>(writtenAsset1(text)).asset1, present(text));
}

TEST(AssetInfo, NonASCIITextIsWrittenUnchangedAndComesBack) {
    const std::string text = "B\u00fcro \u6771\u4eac \u20ac \U0001F5A5";
    EXPECT_EQ(writtenAsset1(text), written<AssetInfo>("<Asset1>" + text + "</Asset1>"));
    EXPECT_EQ(parsed<AssetInfo>(writtenAsset1(text)).asset1, present(text));
}

TEST(AssetInfo, ByteOrderMarkBeforeTheDocumentIsIgnored) {
    const auto record = parsed<AssetInfo>("\xef\xbb\xbf" + compact(filled<AssetInfo>()));
    EXPECT_EQ(describe(record), describe(filledAndParsedBack<AssetInfo>()));
}

TEST(AssetInfo, CDATAIsTextAndIsWrittenBackEscaped) {
    EXPECT_EQ(asset1From("<![CDATA[<b> & &amp; c]]>"), present("<b> & &amp; c"));
    const auto record = parsed<AssetInfo>("<AssetInfo><Asset1><![CDATA[a < b]]></Asset1></AssetInfo>");
    EXPECT_EQ(compact(record), written<AssetInfo>("<Asset1>a &lt; b</Asset1>"));
}

TEST(AssetInfo, CommentsBeforeTheTextAreIgnored) {
    EXPECT_EQ(asset1From("<!-- one --><!-- two -->text"), present("text"));
    EXPECT_EQ(asset1From("<!-- one --><![CDATA[text]]>"), present("text"));
}

TEST(AssetInfo, TextEndsAtTheFirstCommentInsideIt) {
    EXPECT_EQ(asset1From("one<!-- comment -->two"), present("one"));
}

TEST(AssetInfo, WhiteSpaceAroundTheTextIsKept) {
    const std::string text = "  two  words\tand\nlines ";
    EXPECT_EQ(asset1From(text), present(text));
    EXPECT_EQ(parsed<AssetInfo>(writtenAsset1(text)).asset1, present(text));
}

TEST(AssetInfo, LineEndsBecomeLineFeeds) {
    EXPECT_EQ(asset1From("one\r\ntwo\rthree"), present("one\ntwo\nthree"));
}

TEST(AssetInfo, NumbersAndWordsOfOtherTypesStayText) {
    for (const char* text : {"0012", "-1", "1.50", "true", "1|2|3"}) {
        EXPECT_EQ(asset1From(text), present(text));
        EXPECT_EQ(writtenAsset1(text), written<AssetInfo>("<Asset1>" + std::string(text) + "</Asset1>"));
    }
}

TEST(AssetInfo, LongTextComesBack) {
    const std::string text = std::string(100000, 'a') + '&' + std::string(100000, 'b');
    EXPECT_EQ(parsed<AssetInfo>(writtenAsset1(text)).asset1, present(text));
}

}  // namespace
}  // namespace lv::test

#include <lvdata/xml/XMLElement.h>
#include <tests/support/ParsedDocument.h>
#include <tests/support/value_kinds.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using test::ParsedDocument;

std::string document(const std::string& text) {
    return "<A><B>" + text + "</B></A>";
}

/// What an element can hold that is not its own text.
const std::vector<const char*> noTexts = {
    "<A/>", "<A></A>", "<A>  \n </A>", "<A><!-- 5 --></A>", "<A><B>5</B></A>", "<A><B/>5</A>", "<A a='5'/>"};

template <class Kind>
class XMLElementReading : public testing::Test {};

TYPED_TEST_SUITE(XMLElementReading, test::AllKinds, test::KindName);

TYPED_TEST(XMLElementReading, GivesTheElementsOwnTextAndReturnsTheElement) {
    const ParsedDocument parsed(document(TypeParam::text));
    const XMLElement child = parsed.root().getElement("B");
    auto out = TypeParam::otherValue();
    EXPECT_EQ(TypeParam::read(child, out).get(), child.get());
    EXPECT_EQ(out, TypeParam::value());
}

TYPED_TEST(XMLElementReading, GivesTheTextOfANamedChildAndReturnsTheChild) {
    const ParsedDocument parsed(document(TypeParam::text));
    auto out = TypeParam::otherValue();
    EXPECT_EQ(TypeParam::readChild(parsed.root(), "B", out).get(), parsed.root().getElement("B").get());
    EXPECT_EQ(out, TypeParam::value());
}

TYPED_TEST(XMLElementReading, TheFirstOfRepeatedChildrenIsRead) {
    const std::string text = TypeParam::text;
    const ParsedDocument parsed("<A><C/><B>" + text + "</B><B>0</B></A>");
    auto out = TypeParam::otherValue();
    EXPECT_TRUE(TypeParam::readChild(parsed.root(), "B", out).isValid());
    EXPECT_EQ(out, TypeParam::value());
}

TYPED_TEST(XMLElementReading, AMissingChildGivesInvalidAndLeavesOutUntouched) {
    for (const char* const text : {"<A/>", "<A><b>0</b></A>", "<A><C><B>0</B></C></A>", "<B>0</B>"}) {
        const ParsedDocument parsed(text);
        auto out = TypeParam::value();
        EXPECT_FALSE(TypeParam::readChild(parsed.root(), "B", out).isValid()) << text;
        EXPECT_EQ(out, TypeParam::value()) << text;
    }
}

template <class Kind>
class XMLElementReadingNumbers : public testing::Test {};

TYPED_TEST_SUITE(XMLElementReadingNumbers, test::NumberKinds, test::KindName);

TYPED_TEST(XMLElementReadingNumbers, AnElementWithoutTextGivesInvalidAndLeavesOutUntouched) {
    for (const char* const text : noTexts) {
        const ParsedDocument parsed(text);
        auto out = TypeParam::value();
        EXPECT_FALSE(TypeParam::read(parsed.root(), out).isValid()) << text;
        EXPECT_EQ(out, TypeParam::value()) << text;
    }
}

TYPED_TEST(XMLElementReadingNumbers, EmptyTextGivesInvalidAndLeavesOutUntouched) {
    const ParsedDocument parsed(document("<![CDATA[]]>"));
    auto out = TypeParam::value();
    EXPECT_FALSE(TypeParam::readChild(parsed.root(), "B", out).isValid());
    EXPECT_EQ(out, TypeParam::value());
}

TEST(XMLElementGetStringValue, AnElementWithoutTextIsFoundAndLeavesOutUntouched) {
    for (const char* const text : noTexts) {
        const ParsedDocument parsed(text);
        std::string out = "old";
        EXPECT_TRUE(parsed.root().getStringValue(out).isValid()) << text;
        EXPECT_EQ(out, "old") << text;
    }
}

TEST(XMLElementGetStringValue, EmptyTextIsTextAndEmptiesOut) {
    std::string out = "old";
    EXPECT_TRUE(ParsedDocument(document("<![CDATA[]]>")).root().getStringValue("B", out).isValid());
    EXPECT_EQ(out, "");
}

TEST(XMLElementGetStringValue, ReadsEntitiesSectionsAndCommentsAsXMLDefinesThem) {
    struct Case {
        const char* content;
        const char* text;
    };
    const std::vector<Case> cases = {
        {"&lt;&amp;&gt;&quot;&apos;", "<&>\"'"},     // entities
        {"&#181;m &#xB5;m", "\xC2\xB5m \xC2\xB5m"},  // numeric references
        {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xA8"},
        {"&unknown; &", "&unknown; &"},
        {"  two  spaces ", "  two  spaces "},
        {"a\r\nb\rc\nd", "a\nb\nc\nd"},
        {"<![CDATA[<&amp;>]]>", "<&amp;>"},
        {"<!-- before -->text", "text"},
        {"<!-- one --><!-- two -->text", "text"},
        {"text<!-- behind -->", "text"},
        {"text<!-- between -->more", "text"},
        {"text<![CDATA[more]]>", "text"},
        {"<![CDATA[text]]>more", "text"},
        {"text<C/>more", "text"},
    };
    for (const auto& [content, text] : cases) {
        std::string out;
        EXPECT_TRUE(ParsedDocument(document(content)).root().getStringValue("B", out).isValid()) << content;
        EXPECT_EQ(out, text) << content;
    }
}

TEST(XMLElementGetIntValue, ConvertsAsLexicalCastDoes) {
    struct Case {
        const char* text;
        int number;
        unsigned int count;
    };
    const std::vector<Case> cases = {{"7", 7, 7},
                                     {" 7 ", 7, 7},
                                     {"7 8", 7, 7},
                                     {"-1", -1, 4294967295U},
                                     {"99999999999", 2147483647, 4294967295U},
                                     {"abc", 0, 0},
                                     {"12abc", 12, 12},
                                     {"true", 0, 0},
                                     {"&#52;2", 42, 42},
                                     {"<![CDATA[42]]>", 42, 42},
                                     {"<!-- 1 -->42<!-- 2 -->", 42, 42}};
    for (const auto& [text, number, count] : cases) {
        const ParsedDocument parsed(document(text));
        int signedOut = 9;
        unsigned int unsignedOut = 9;
        EXPECT_TRUE(parsed.root().getIntValue("B", signedOut).isValid()) << text;
        EXPECT_TRUE(parsed.root().getUIntValue("B", unsignedOut).isValid()) << text;
        EXPECT_EQ(signedOut, number) << text;
        EXPECT_EQ(unsignedOut, count) << text;
    }
}

TEST(XMLElementGetIntValue, TextOfWhiteSpaceAloneIsFoundAndReadsAsZero) {
    for (const char* const text : {"<![CDATA[ \t\n]]>", "&#32;"}) {
        const ParsedDocument parsed(document(text));
        int number = 9;
        unsigned int count = 9;
        EXPECT_TRUE(parsed.root().getIntValue("B", number).isValid()) << text;
        EXPECT_TRUE(parsed.root().getUIntValue("B", count).isValid()) << text;
        EXPECT_EQ(number, 0) << text;
        EXPECT_EQ(count, 0U) << text;
    }
}

TEST(XMLElementGetBoolValue, TrueTextsAreTrueAndEverythingElseIsFalse) {
    struct Case {
        const char* text;
        bool truth;
    };
    const std::vector<Case> cases = {{"true", true},   {"TRUE", true},   {"True", false},  {"tRUE", false},
                                     {"1", false},     {"yes", false},   {"false", false}, {"FALSE", false},
                                     {" true", false}, {"true ", false}, {"trueX", false}};
    for (const auto& [text, truth] : cases) {
        const ParsedDocument parsed(document(text));
        bool out = !truth;
        EXPECT_TRUE(parsed.root().getElement("B").getBoolValue(out).isValid()) << text;
        EXPECT_EQ(out, truth) << text;
    }
}

struct ArrayCase {
    std::string text;
    std::string separator;
    std::vector<int> numbers;
};

TEST(XMLElementGetIntArray, SplitsTheOwnTextAtTheSeparatorAndSkipsEmptyPieces) {
    const std::vector<ArrayCase> cases = {
        {"1|2|3", "|", {1, 2, 3}},      {"5", "|", {5}},        {"1||2|", "|", {1, 2}}, {"|", "|", {}},
        {" 7 |abc|8x", "|", {7, 0, 8}}, {" ||9", "|", {0, 9}},  {"1,2", ",", {1, 2}},   {"1|2", ",", {1}},
        {"1, 2", ", ", {1, 2}},         {"1::2", "::", {1, 0}}, {"1|2", "", {1}},
    };
    for (const auto& [text, separator, numbers] : cases) {
        const ParsedDocument parsed("<A>" + text + "</A>");
        std::vector<int> out = {9, 9, 9, 9};
        std::vector<unsigned int> unsignedOut = {9, 9, 9, 9};
        EXPECT_TRUE(parsed.root().getIntArray(out, separator).isValid()) << text;
        EXPECT_TRUE(parsed.root().getUIntArray(unsignedOut, separator).isValid()) << text;
        EXPECT_EQ(out, numbers) << text;
        EXPECT_EQ(unsignedOut, std::vector<unsigned int>(numbers.begin(), numbers.end())) << text;
    }
}

TEST(XMLElementGetIntArray, ConvertsEachPieceAsLexicalCastDoes) {
    const ParsedDocument parsed("<A>-1|99999999999|0x10</A>");
    std::vector<int> numbers;
    std::vector<unsigned int> counts;
    parsed.root().getIntArray(numbers, "|");
    parsed.root().getUIntArray(counts, "|");
    EXPECT_EQ(numbers, (std::vector<int>{-1, 2147483647, 0}));
    EXPECT_EQ(counts, (std::vector<unsigned int>{4294967295U, 4294967295U, 0}));
}

TEST(XMLElementGetIntArray, ForANamedChildAlwaysSplitsAtTheBar) {
    const ParsedDocument parsed("<A><Comma>1,2</Comma><Bar>1|2</Bar></A>");
    std::vector<int> numbers = {9};
    std::vector<unsigned int> counts = {9};
    EXPECT_TRUE(parsed.root().getIntArray("Comma", numbers, ",").isValid());
    EXPECT_TRUE(parsed.root().getUIntArray("Comma", counts, ",").isValid());
    EXPECT_EQ(numbers, std::vector<int>{1});
    EXPECT_EQ(counts, std::vector<unsigned int>{1});
    parsed.root().getIntArray("Bar", numbers, ",");
    parsed.root().getUIntArray("Bar", counts, "");
    EXPECT_EQ(numbers, (std::vector<int>{1, 2}));
    EXPECT_EQ(counts, (std::vector<unsigned int>{1, 2}));
}

}  // namespace
}  // namespace lv

#include <lvdata/xml/XMLElement.h>
#include <tests/support/ParsedDocument.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using test::ParsedDocument;

/// Reads one attribute as each of the three types.
struct Attribute {
    property<std::string> text{"old", false};
    property<int> number{9, false};
    property<unsigned int> count{9, false};

    Attribute(const XMLElement& element, const std::string& name) {
        element.getAttributeString(name, text);
        element.getAttributeInt(name, number);
        element.getAttributeUInt(name, count);
    }
};

TEST(XMLElementAttribute, GivesItsValueAndReturnsTheElement) {
    const ParsedDocument parsed("<A Type='Value' n='-5' u='4294967295'/>");
    std::string text;
    int number = 0;
    unsigned int count = 0;
    EXPECT_EQ(parsed.root().getAttributeString("Type", text).get(), parsed.root().get());
    EXPECT_EQ(parsed.root().getAttributeInt("n", number).get(), parsed.root().get());
    EXPECT_EQ(parsed.root().getAttributeUInt("u", count).get(), parsed.root().get());
    EXPECT_EQ(text, "Value");
    EXPECT_EQ(number, -5);
    EXPECT_EQ(count, 4294967295U);
}

TEST(XMLElementAttribute, MissingGivesInvalidAndLeavesOutUntouched) {
    const ParsedDocument parsed("<A type='1'><B Type='1'/></A>");
    std::string text = "old";
    int number = 9;
    unsigned int count = 9;
    EXPECT_FALSE(parsed.root().getAttributeString("Type", text).isValid());
    EXPECT_FALSE(parsed.root().getAttributeInt("Type", number).isValid());
    EXPECT_FALSE(parsed.root().getAttributeUInt("Type", count).isValid());
    EXPECT_EQ(text, "old");
    EXPECT_EQ(number, 9);
    EXPECT_EQ(count, 9U);
}

TEST(XMLElementAttribute, EmptyIsFoundAsTextButNotAsANumber) {
    const ParsedDocument parsed("<A Type=''/>");
    std::string text = "old";
    int number = 9;
    unsigned int count = 9;
    EXPECT_TRUE(parsed.root().getAttributeString("Type", text).isValid());
    EXPECT_FALSE(parsed.root().getAttributeInt("Type", number).isValid());
    EXPECT_FALSE(parsed.root().getAttributeUInt("Type", count).isValid());
    EXPECT_EQ(text, "");
    EXPECT_EQ(number, 9);
    EXPECT_EQ(count, 9U);
}

TEST(XMLElementAttribute, NumbersConvertAsLexicalCastDoes) {
    struct Case {
        const char* text;
        int number;
        unsigned int count;
    };
    const std::vector<Case> cases = {{"7", 7, 7},   {" 7 ", 7, 7},           {" ", 0, 0},
                                     {"abc", 0, 0}, {"-1", -1, 4294967295U}, {"3.9", 3, 3}};
    for (const auto& [text, number, count] : cases) {
        const ParsedDocument parsed(std::string("<A n='") + text + "'/>");
        const Attribute read(parsed.root(), "n");
        EXPECT_EQ(read.number, (property<int>{number, true})) << text;
        EXPECT_EQ(read.count, (property<unsigned int>{count, true})) << text;
    }
}

TEST(XMLElementAttribute, PropertyOfAPresentOneHoldsItsValueAndItsFlagIsSet) {
    const Attribute read(ParsedDocument("<A n='5'/>").root(), "n");
    EXPECT_EQ(read.text, (property<std::string>{"5", true}));
    EXPECT_EQ(read.number, (property<int>{5, true}));
    EXPECT_EQ(read.count, (property<unsigned int>{5, true}));
}

TEST(XMLElementAttribute, PropertyOfAMissingOneKeepsItsValueAndItsFlagIsCleared) {
    const ParsedDocument parsed("<A/>");
    property<std::string> text{"old", true};
    property<int> number{9, true};
    property<unsigned int> count{9, true};
    EXPECT_FALSE(parsed.root().getAttributeString("n", text).isValid());
    EXPECT_FALSE(parsed.root().getAttributeInt("n", number).isValid());
    EXPECT_FALSE(parsed.root().getAttributeUInt("n", count).isValid());
    EXPECT_EQ(text, (property<std::string>{"old", false}));
    EXPECT_EQ(number, (property<int>{9, false}));
    EXPECT_EQ(count, (property<unsigned int>{9, false}));
}

TEST(XMLElementAttribute, PropertyOfAnEmptyOneIsSetAsTextAndClearedAsANumber) {
    const ParsedDocument parsed("<A n=''/>");
    property<std::string> text{"old", false};
    property<int> number{9, true};
    property<unsigned int> count{9, true};
    parsed.root().getAttributeString("n", text);
    parsed.root().getAttributeInt("n", number);
    parsed.root().getAttributeUInt("n", count);
    EXPECT_EQ(text, (property<std::string>{"", true}));
    EXPECT_EQ(number, (property<int>{9, false}));
    EXPECT_EQ(count, (property<unsigned int>{9, false}));
}

TEST(XMLElementSetAttribute, CreatesTheAttributesInTheOrderOfTheCallsAndReturnsTheElement) {
    const ParsedDocument parsed("<A/>");
    const XMLElement root = parsed.root();
    EXPECT_EQ(root.setAttributeString("Type", "Value").get(), root.get());
    EXPECT_EQ(root.setAttributeInt("n", -2147483647 - 1).get(), root.get());
    EXPECT_EQ(root.setAttributeUInt("u", 4294967295U).get(), root.get());
    EXPECT_EQ(parsed.text(), R"(<A Type="Value" n="-2147483648" u="4294967295"/>)");
}

TEST(XMLElementSetAttribute, ReplacesAnExistingOneInPlace) {
    const ParsedDocument parsed("<A a='1' b='2' c='3'/>");
    parsed.root().setAttributeString("a", "").setAttributeInt("b", 5).setAttributeUInt("c", 6);
    EXPECT_EQ(parsed.text(), R"(<A a="" b="5" c="6"/>)");
}

TEST(XMLElementSetAttribute, SpecialCharactersSurviveBothWays) {
    const std::string special = "a<b>&\"c'd \xC3\xA9\xE2\x82\xAC &amp; &#65;";
    const ParsedDocument written("<A/>");
    written.root().setAttributeString("Type", special);
    const ParsedDocument read(written.text());
    std::string text;
    EXPECT_TRUE(read.root().getAttributeString("Type", text).isValid());
    EXPECT_EQ(text, special);
}

TEST(XMLElementAttribute, EntitiesAndNumericReferencesAreResolved) {
    std::string text;
    ParsedDocument("<A a='&lt;&amp;&gt;&quot;&apos;&#181;&#xB5;'/>").root().getAttributeString("a", text);
    EXPECT_EQ(text, "<&>\"'\xC2\xB5\xC2\xB5");
}

}  // namespace
}  // namespace lv

#include <lvdata/xml/XMLElement.h>
#include <tests/support/ParsedDocument.h>
#include <tests/support/value_kinds.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using test::ParsedDocument;

std::string childText(const ParsedDocument& document, const std::string& name) {
    std::string text = "not found";
    document.root().getStringValue(name, text);
    return text;
}

template <class Kind>
class XMLElementAppending : public testing::Test {
protected:
    using Property = property<typename Kind::Value>;

    static std::string withText() { return std::string("<A><B>") + Kind::text + "</B></A>"; }

    ParsedDocument document_{"<A/>"};
};

TYPED_TEST_SUITE(XMLElementAppending, test::AllKinds, test::KindName);

TYPED_TEST(XMLElementAppending, AppendsAChildWithTheValuesTextAndReturnsTheChild) {
    const XMLElement child = TypeParam::append(this->document_.root(), "B", TypeParam::value());
    EXPECT_EQ(child.get(), this->document_.root().getElement("B").get());
    EXPECT_EQ(this->document_.text(), this->withText());
}

TYPED_TEST(XMLElementAppending, WhatIsAppendedReadsBack) {
    TypeParam::append(this->document_.root(), "B", TypeParam::value());
    const ParsedDocument printed(this->document_.text());
    auto out = TypeParam::otherValue();
    EXPECT_TRUE(TypeParam::readChild(printed.root(), "B", out).isValid());
    EXPECT_EQ(out, TypeParam::value());
}

TYPED_TEST(XMLElementAppending, AppendsASetPropertyAsItsValue) {
    const typename TestFixture::Property set{TypeParam::value(), true};
    EXPECT_TRUE(TypeParam::append(this->document_.root(), "B", set).isValid());
    EXPECT_EQ(this->document_.text(), this->withText());
}

TYPED_TEST(XMLElementAppending, AppendsNothingForAnUnsetProperty) {
    const typename TestFixture::Property unset{TypeParam::value(), false};
    EXPECT_FALSE(TypeParam::append(this->document_.root(), "B", unset).isValid());
    EXPECT_EQ(this->document_.text(), "<A/>");
}

template <class Kind>
class XMLElementAppendingSingle : public XMLElementAppending<Kind> {};

TYPED_TEST_SUITE(XMLElementAppendingSingle, test::SingleKinds, test::KindName);

TYPED_TEST(XMLElementAppendingSingle, WriteEmptyAppendsAnElementWithoutTextForAnUnsetProperty) {
    const typename TestFixture::Property unset{TypeParam::value(), false};
    const XMLElement child = TypeParam::append(this->document_.root(), "B", unset, true);
    EXPECT_EQ(child.get(), this->document_.root().getElement("B").get());
    EXPECT_TRUE(child.isValid());
    EXPECT_EQ(this->document_.text(), "<A><B/></A>");
}

TYPED_TEST(XMLElementAppendingSingle, WriteEmptyChangesNothingForASetProperty) {
    const typename TestFixture::Property set{TypeParam::value(), true};
    EXPECT_TRUE(TypeParam::append(this->document_.root(), "B", set, true).isValid());
    EXPECT_EQ(this->document_.text(), this->withText());
}

TEST(XMLElementAppendChild, AppendsAnElementWithoutATextNodeAsTheLastChild) {
    const ParsedDocument document("<A><B>1</B>text</A>");
    const XMLElement child = document.root().appendChild("C");
    EXPECT_EQ(child.elementName(), "C");
    EXPECT_EQ(document.text(), "<A><B>1</B>text<C/></A>");
}

TEST(XMLElementAppendChild, TheNewChildTakesChildrenAndAttributes) {
    const ParsedDocument document("<A/>");
    const XMLElement child = document.root().appendChild("B");
    child.setAttributeString("Type", "Value").appendChildInt("C", 5);
    EXPECT_EQ(document.text(), R"(<A><B Type="Value"><C>5</C></B></A>)");
}

TEST(XMLElementAppendChild, ChildrenOfOneNameAreInTheOrderOfTheCalls) {
    const ParsedDocument document("<A/>");
    document.root().appendChildInt("B", 2);
    document.root().appendChildInt("B", 1);
    EXPECT_EQ(document.text(), "<A><B>2</B><B>1</B></A>");
}

TEST(XMLElementAppendChildString, EmptyTextIsAlsoATextNode) {
    const ParsedDocument document("<A/>");
    document.root().appendChildString("B", "");
    document.root().appendChildString("C", property<std::string>{"", true}, false);
    EXPECT_EQ(document.text(), "<A><B></B><C></C></A>");
    EXPECT_EQ(childText(document, "B"), "");
}

TEST(XMLElementAppendChildString, SpecialCharactersAreEscapedAndReadBack) {
    const std::string special = "a<b>&\"c'd \xC3\xA9\xE2\x82\xAC &amp; ]]> &#65;\n\t  e";
    const ParsedDocument written("<A/>");
    written.root().appendChildString("B", special);
    EXPECT_EQ(written.text().find("<b>"), std::string::npos);
    EXPECT_EQ(childText(ParsedDocument(written.text()), "B"), special);
}

TEST(XMLElementAppendChildString, UnicodeTextIsWrittenUnchanged) {
    const ParsedDocument document("<A/>");
    document.root().appendChildString("B", "\xC2\xB5 \xE7\xB7\x91 \xF0\x9F\x8E\xA8");
    EXPECT_EQ(document.text(), "<A><B>\xC2\xB5 \xE7\xB7\x91 \xF0\x9F\x8E\xA8</B></A>");
}

TEST(XMLElementAppendChildString, NamesAndTextEndAtTheirFirstNul) {
    const ParsedDocument document("<A/>");
    document.root().appendChildString(std::string("B\0C", 3), std::string("1\0002", 3));
    EXPECT_EQ(document.text(), "<A><B>1</B></A>");
}

TEST(XMLElementAppendChildBool, WritesTrueAndFalseInLowerCase) {
    const ParsedDocument document("<A/>");
    document.root().appendChildBool("B", true);
    document.root().appendChildBool("B", false);
    document.root().appendChildBool("B", property<bool>{false, true}, false);
    EXPECT_EQ(document.text(), "<A><B>true</B><B>false</B><B>false</B></A>");
}

TEST(XMLElementAppendChildInt, WritesTheLimitsOfBothTypes) {
    const ParsedDocument document("<A/>");
    document.root().appendChildInt("B", -2147483647 - 1);
    document.root().appendChildInt("B", 2147483647);
    document.root().appendChildUInt("B", 0);
    document.root().appendChildUInt("B", 4294967295U);
    EXPECT_EQ(document.text(), "<A><B>-2147483648</B><B>2147483647</B><B>0</B><B>4294967295</B></A>");
}

TEST(XMLElementAppendChildIntArray, JoinsTheValuesWithTheSeparatorBetweenThem) {
    const ParsedDocument document("<A/>");
    document.root().appendChildIntArray("B", {1, 2, 3}, "|");
    document.root().appendChildIntArray("B", {-1, 2}, ", ");
    document.root().appendChildUIntArray("B", {1U, 4294967295U}, ";");
    document.root().appendChildUIntArray("B", {7U}, "|");
    document.root().appendChildUIntArray("B", {1U, 2U}, "");
    EXPECT_EQ(document.text(), "<A><B>1|2|3</B><B>-1, 2</B><B>1;4294967295</B><B>7</B><B>12</B></A>");
}

TEST(XMLElementAppendChildIntArray, AnEmptyVectorWritesAnElementWithEmptyText) {
    const ParsedDocument document("<A/>");
    document.root().appendChildIntArray("B", std::vector<int>(), "|");
    document.root().appendChildUIntArray("C", std::vector<unsigned int>(), "|");
    document.root().appendChildIntArray("D", property<std::vector<int>>{{}, true}, "|");
    EXPECT_EQ(document.text(), "<A><B></B><C></C><D></D></A>");
    EXPECT_EQ(childText(document, "B"), "");
}

TEST(XMLElementAppendChildIntArray, APropertyIsJoinedWithTheSeparatorGiven) {
    const ParsedDocument document("<A/>");
    document.root().appendChildIntArray("B", property<std::vector<int>>{{1, -2}, true}, ",");
    document.root().appendChildUIntArray("C", property<std::vector<unsigned int>>{{3, 4}, true}, ",");
    EXPECT_EQ(document.text(), "<A><B>1,-2</B><C>3,4</C></A>");
}

}  // namespace
}  // namespace lv

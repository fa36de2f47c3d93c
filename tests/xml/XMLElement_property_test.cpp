#include <lvdata/xml/XMLElement.h>
#include <tests/support/ParsedDocument.h>
#include <tests/support/value_kinds.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lv {
namespace {

using test::ParsedDocument;

template <class Kind>
class XMLElementProperty : public testing::Test {
protected:
    using Property = property<typename Kind::Value>;
};

TYPED_TEST_SUITE(XMLElementProperty, test::AllKinds, test::KindName);

TYPED_TEST(XMLElementProperty, ReadFromAnElementHoldsItsValueAndItsFlagIsSet) {
    const ParsedDocument parsed(std::string("<A>") + TypeParam::text + "</A>");
    typename TestFixture::Property out{TypeParam::otherValue(), false};
    EXPECT_EQ(TypeParam::read(parsed.root(), out).get(), parsed.root().get());
    EXPECT_EQ(out.value, TypeParam::value());
    EXPECT_TRUE(out.hasValue);
}

TYPED_TEST(XMLElementProperty, ReadFromANamedChildHoldsItsValueAndItsFlagIsSet) {
    const ParsedDocument parsed(std::string("<A><B>") + TypeParam::text + "</B></A>");
    typename TestFixture::Property out{TypeParam::otherValue(), false};
    EXPECT_EQ(TypeParam::readChild(parsed.root(), "B", out).get(), parsed.root().getElement("B").get());
    EXPECT_EQ(out.value, TypeParam::value());
    EXPECT_TRUE(out.hasValue);
}

TYPED_TEST(XMLElementProperty, ReadFromAMissingElementKeepsItsValueAndItsFlagIsCleared) {
    const ParsedDocument parsed("<A><C>0</C></A>");
    typename TestFixture::Property out{TypeParam::value(), true};
    EXPECT_FALSE(TypeParam::readChild(parsed.root(), "B", out).isValid());
    EXPECT_EQ(out.value, TypeParam::value());
    EXPECT_FALSE(out.hasValue);
}

template <class Kind>
class XMLElementNumberProperty : public XMLElementProperty<Kind> {};

TYPED_TEST_SUITE(XMLElementNumberProperty, test::NumberKinds, test::KindName);

TYPED_TEST(XMLElementNumberProperty, ReadFromEmptyTextKeepsItsValueAndItsFlagIsCleared) {
    for (const char* const text : {"<A/>", "<A></A>", "<A>  </A>", "<A><![CDATA[]]></A>"}) {
        const ParsedDocument parsed(text);
        typename TestFixture::Property out{TypeParam::value(), true};
        EXPECT_FALSE(TypeParam::read(parsed.root(), out).isValid()) << text;
        EXPECT_EQ(out.value, TypeParam::value()) << text;
        EXPECT_FALSE(out.hasValue) << text;
    }
}

TEST(XMLElementStringProperty, ReadFromAnElementWithoutTextKeepsItsValueAndItsFlagIsSet) {
    for (const char* const text : {"<A/>", "<A></A>", "<A>  </A>"}) {
        property<std::string> out{"old", false};
        EXPECT_TRUE(ParsedDocument(text).root().getStringValue(out).isValid()) << text;
        EXPECT_EQ(out, (property<std::string>{"old", true})) << text;
    }
}

TEST(XMLElementArrayProperty, AlwaysSplitsAtTheBar) {
    const ParsedDocument parsed("<A>1|2,3<B>4|5,6</B></A>");
    property<std::vector<int>> numbers;
    property<std::vector<unsigned int>> counts;
    parsed.root().getIntArray(numbers, ",");
    parsed.root().getUIntArray(counts, ",");
    EXPECT_EQ(numbers.value, (std::vector<int>{1, 2}));
    EXPECT_EQ(counts.value, (std::vector<unsigned int>{1, 2}));
    parsed.root().getIntArray("B", numbers, ",");
    parsed.root().getUIntArray("B", counts, ",");
    EXPECT_EQ(numbers.value, (std::vector<int>{4, 5}));
    EXPECT_EQ(counts.value, (std::vector<unsigned int>{4, 5}));
}

TEST(XMLElementArrayProperty, IsSetAndEmptyForSeparatorsAlone) {
    property<std::vector<int>> numbers{{9}, false};
    ParsedDocument("<A>||</A>").root().getIntArray(numbers, "|");
    EXPECT_EQ(numbers, (property<std::vector<int>>{{}, true}));
}

}  // namespace
}  // namespace lv

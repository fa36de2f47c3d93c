#include <lvdata/xml/XMLElement.h>
#include <tests/support/ParsedDocument.h>
#include <tests/support/value_kinds.h>

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <tinyxml2.h>

namespace lv {
namespace {

using test::ParsedDocument;

TEST(XMLElement, ElementNameIsTheTagName) {
    EXPECT_EQ(ParsedDocument("<A/>").root().elementName(), "A");
    EXPECT_EQ(ParsedDocument("<sixColors>1</sixColors>").root().elementName(), "sixColors");
}

TEST(XMLElement, AnUntypedHandleIsANodeOfTheXmlLibrary) {
    tinyxml2::XMLDocument document;
    document.Parse("<A><B>5</B></A>");
    tinyxml2::XMLNode* const node = document.FirstChildElement();
    const XMLElement element(node);
    EXPECT_EQ(element.elementName(), "A");
    EXPECT_EQ(element.get(), node);

    const void* const child = element.getElement("B").get();
    EXPECT_EQ(child, static_cast<tinyxml2::XMLNode*>(node->FirstChildElement("B")));
    auto* const appended = static_cast<tinyxml2::XMLNode*>(element.appendChild("C").get());
    EXPECT_EQ(appended->ToElement(), node->LastChildElement());
}

TEST(XMLElementGetElement, GivesTheFirstChildOfThatName) {
    const ParsedDocument document("<A><B>1</B><C>2</C><C>3</C></A>");
    std::string text;
    document.root().getElement("C").getStringValue(text);
    EXPECT_EQ(text, "2");
}

TEST(XMLElementGetElement, IsInvalidWhereNoChildHasThatName) {
    const ParsedDocument document("<A>text<!-- B --><C><B/></C></A>");
    for (const char* const name : {"B", "A", "c", "text", ""}) {
        EXPECT_FALSE(document.root().getElement(name).isValid()) << name;
    }
}

TEST(XMLElementGetElement, ChainsThroughAMissingChild) {
    const ParsedDocument document("<A><B><C>1</C></B></A>");
    EXPECT_TRUE(document.root().getElement("B").getElement("C").isValid());
    EXPECT_FALSE(document.root().getElement("X").getElement("C").getElement("D").isValid());
}

std::vector<std::string> texts(const std::vector<XMLElement>& elements) {
    std::vector<std::string> result;
    for (const XMLElement& element : elements) {
        element.getStringValue(result.emplace_back());
    }
    return result;
}

TEST(XMLElementGetElements, GivesTheChildrenOfThatNameInDocumentOrderAndSkipsOthersBetween) {
    const ParsedDocument document("<A><X>0</X><B>3</B><X/>text<B>1</B><!-- c --><C><B>9</B></C><B>2</B><X/></A>");
    EXPECT_EQ(texts(document.root().getElements("B")), (std::vector<std::string>{"3", "1", "2"}));
}

TEST(XMLElementGetElements, IsEmptyWhereNoChildHasThatName) {
    EXPECT_TRUE(ParsedDocument("<A><b/></A>").root().getElements("B").empty());
    EXPECT_TRUE(ParsedDocument("<B/>").root().getElements("B").empty());
}

/// A node that is not an element, or no node at all.
struct OtherNode {
    const char* name;
    tinyxml2::XMLNode* (*pick)(tinyxml2::XMLDocument& document);
};

std::ostream& operator<<(std::ostream& stream, const OtherNode& node) {
    return stream << node.name;
}

const std::vector<OtherNode> otherNodes = {
    {"Nothing",
     [](tinyxml2::XMLDocument& /*document*/) -> tinyxml2::XMLNode* {
         return nullptr;
     }},
    {"Document",
     [](tinyxml2::XMLDocument& document) -> tinyxml2::XMLNode* {
         return &document;
     }},
    {"Declaration",
     [](tinyxml2::XMLDocument& document) {
         return document.FirstChild();
     }},
    {"Comment",
     [](tinyxml2::XMLDocument& document) {
         return document.FirstChildElement()->FirstChild();
     }},
    {"Text",
     [](tinyxml2::XMLDocument& document) {
         return document.FirstChildElement()->LastChild();
     }},
};

/// What every operation does on a wrapper without an element: nothing, and it says so.
class XMLElementWithoutElement : public testing::TestWithParam<OtherNode> {
protected:
    XMLElementWithoutElement() {
        document_.Parse("<?xml version='1.0'?><A a='1'><!-- comment -->5</A>");
        before_ = printed();
    }

    void TearDown() override { EXPECT_EQ(printed(), before_) << "the document was changed"; }

    [[nodiscard]] XMLElement element() { return XMLElement(GetParam().pick(document_)); }

    [[nodiscard]] std::string printed() const {
        tinyxml2::XMLPrinter printer;
        document_.Print(&printer);
        return printer.CStr();
    }

    template <class Kind>
    void expectNothingRead() {
        auto out = Kind::value();
        EXPECT_FALSE(Kind::read(element(), out).isValid()) << Kind::name;
        EXPECT_FALSE(Kind::readChild(element(), "A", out).isValid()) << Kind::name;
        EXPECT_EQ(out, Kind::value()) << Kind::name;
    }

    template <class Kind>
    void expectPropertyCleared() {
        property<typename Kind::Value> own{Kind::value(), true};
        EXPECT_FALSE(Kind::read(element(), own).isValid()) << Kind::name;
        property<typename Kind::Value> child{Kind::value(), true};
        EXPECT_FALSE(Kind::readChild(element(), "A", child).isValid()) << Kind::name;
        const property<typename Kind::Value> kept{Kind::value(), false};
        EXPECT_EQ(own, kept) << Kind::name;
        EXPECT_EQ(child, kept) << Kind::name;
    }

    template <class Kind>
    void expectNothingAppended() {
        EXPECT_FALSE(Kind::append(element(), "B", Kind::value()).isValid()) << Kind::name;
        const property<typename Kind::Value> set{Kind::value(), true};
        EXPECT_FALSE(Kind::append(element(), "B", set).isValid()) << Kind::name;
    }

    template <class Check>
    static void forEachKind(Check check) {
        check(test::StringKind());
        check(test::IntKind());
        check(test::UIntKind());
        check(test::BoolKind());
        check(test::IntArrayKind());
        check(test::UIntArrayKind());
    }

    tinyxml2::XMLDocument document_;

private:
    std::string before_;
};

INSTANTIATE_TEST_SUITE_P(Of, XMLElementWithoutElement, testing::ValuesIn(otherNodes),
                         testing::PrintToStringParamName());

TEST_P(XMLElementWithoutElement, HasNoNameAndNoChildren) {
    EXPECT_EQ(element().elementName(), "");
    EXPECT_FALSE(element().getElement("A").isValid());
    EXPECT_TRUE(element().getElements("A").empty());
}

TEST_P(XMLElementWithoutElement, GettersFindNothingAndLeaveOutUntouched) {
    forEachKind([this](auto kind) { expectNothingRead<decltype(kind)>(); });
}

TEST_P(XMLElementWithoutElement, PropertyGettersClearTheFlagAndKeepTheValue) {
    forEachKind([this](auto kind) { expectPropertyCleared<decltype(kind)>(); });
}

TEST_P(XMLElementWithoutElement, AppendersAppendNothing) {
    EXPECT_FALSE(element().appendChild("B").isValid());
    forEachKind([this](auto kind) { expectNothingAppended<decltype(kind)>(); });
}

TEST_P(XMLElementWithoutElement, AppendsNoEmptyElementEither) {
    EXPECT_FALSE(element().appendChildString("B", property<std::string>(), true).isValid());
    EXPECT_FALSE(element().appendChildInt("B", property<int>(), true).isValid());
    EXPECT_FALSE(element().appendChildUInt("B", property<unsigned int>(), true).isValid());
    EXPECT_FALSE(element().appendChildBool("B", property<bool>(), true).isValid());
}

TEST_P(XMLElementWithoutElement, AttributeGettersFindNothingAndLeaveOutUntouched) {
    std::string text = "old";
    int number = 9;
    unsigned int count = 9;
    EXPECT_FALSE(element().getAttributeString("a", text).isValid());
    EXPECT_FALSE(element().getAttributeInt("a", number).isValid());
    EXPECT_FALSE(element().getAttributeUInt("a", count).isValid());
    EXPECT_EQ(text, "old");
    EXPECT_EQ(number, 9);
    EXPECT_EQ(count, 9U);
}

TEST_P(XMLElementWithoutElement, AttributePropertyGettersClearTheFlagAndKeepTheValue) {
    property<std::string> text{"old", true};
    property<int> number{9, true};
    property<unsigned int> count{9, true};
    element().getAttributeString("a", text);
    element().getAttributeInt("a", number);
    element().getAttributeUInt("a", count);
    EXPECT_EQ(text, (property<std::string>{"old", false}));
    EXPECT_EQ(number, (property<int>{9, false}));
    EXPECT_EQ(count, (property<unsigned int>{9, false}));
}

TEST_P(XMLElementWithoutElement, AttributeSettersDoNothingAndReturnThisWrapper) {
    EXPECT_EQ(element().setAttributeString("b", "text").get(), element().get());
    EXPECT_EQ(element().setAttributeInt("b", -1).get(), element().get());
    EXPECT_EQ(element().setAttributeUInt("b", 1).get(), element().get());
}

}  // namespace
}  // namespace lv

#include <lvdata/xml/XMLDocument.h>

#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>
#include <tinyxml2.h>

namespace lv {
namespace {

static_assert(!std::is_copy_constructible_v<XMLDocument> && !std::is_copy_assignable_v<XMLDocument>);
static_assert(!std::is_move_constructible_v<XMLDocument> && !std::is_move_assignable_v<XMLDocument>);

const std::string declaration = R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?>)";

/// One element A with an element B of the text 5.
class XMLDocumentOfAAndB : public testing::Test {
protected:
    XMLDocumentOfAAndB() { document_.appendChild("A").appendChildInt("B", 5); }

    XMLDocument document_;
};

std::string nested(std::size_t depth) {
    std::string text;
    for (std::size_t level = 0; level < depth; ++level) {
        text += "<A>";
    }
    for (std::size_t level = 0; level < depth; ++level) {
        text += "</A>";
    }
    return text;
}

TEST(XMLDocument, NewDocumentIsEmptyAndOwned) {
    const XMLDocument document;
    EXPECT_TRUE(document.isValid());
    EXPECT_EQ(document.type(), 1);
    EXPECT_FALSE(document.rootElement().isValid());
    EXPECT_EQ(document.toXMLString(false, false), "");
    EXPECT_EQ(document.toXMLString(true, false), declaration);
    EXPECT_NE(document.get(), XMLDocument().get());
}

TEST_F(XMLDocumentOfAAndB, CompactTextHasNoDeclarationAndNoLineBreaks) {
    EXPECT_EQ(document_.toXMLString(false, false), "<A><B>5</B></A>");
}

TEST_F(XMLDocumentOfAAndB, CompactTextFollowsTheDeclarationDirectly) {
    EXPECT_EQ(document_.toXMLString(true, false), declaration + "<A><B>5</B></A>");
}

TEST_F(XMLDocumentOfAAndB, PrettyTextIsIndentedByFourSpacesALevel) {
    EXPECT_EQ(document_.toXMLString(false, true), "<A>\n    <B>5</B>\n</A>\n");
}

TEST_F(XMLDocumentOfAAndB, PrettyTextBeginsOnTheLineBelowTheDeclaration) {
    EXPECT_EQ(document_.toXMLString(true, true), declaration + "\n<A>\n    <B>5</B>\n</A>\n");
}

TEST_F(XMLDocumentOfAAndB, PrintingChangesNothing) {
    const std::string first = document_.toXMLString(true, true);
    EXPECT_EQ(document_.toXMLString(true, true), first);
    EXPECT_EQ(document_.toXMLString(false, false), "<A><B>5</B></A>");
}

TEST(XMLDocumentAppendChild, AppendsAtDocumentLevelAndReturnsTheElement) {
    const XMLDocument document;
    const XMLElement first = document.appendChild("A");
    const XMLElement second = document.appendChild("B");
    EXPECT_EQ(first.elementName(), "A");
    EXPECT_EQ(second.elementName(), "B");
    EXPECT_EQ(document.rootElement().get(), first.get());
    EXPECT_EQ(document.toXMLString(false, false), "<A/><B/>");
}

TEST(XMLDocumentRootElement, IsTheFirstElementRegardlessOfItsNameAndOfWhatPrecedesIt) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<?xml version='1.0'?>\n<!DOCTYPE any>\n<!-- comment -->\n<any/><other/>"));
    EXPECT_EQ(document.rootElement().elementName(), "any");
}

TEST(XMLDocumentRootElement, IsInvalidWithoutAnElement) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<!-- comment -->"));
    EXPECT_FALSE(document.rootElement().isValid());
}

TEST(XMLDocumentParse, AcceptsWellFormedText) {
    const std::string byteOrderMark = "\xEF\xBB\xBF";
    for (const std::string& text : {std::string("<A/>"), std::string(" \n<A></A>\n"), declaration + "<A><B>5</B></A>",
                                    byteOrderMark + "<A/>", std::string("<A a='1'><![CDATA[<]]></A>")}) {
        XMLDocument document;
        EXPECT_TRUE(document.parseXMLString(text)) << text;
        EXPECT_EQ(document.rootElement().elementName(), "A") << text;
        EXPECT_EQ(document.parseErrorText(), "") << text;
        EXPECT_EQ(document.parseErrorLine(), 0) << text;
    }
}

TEST(XMLDocumentParse, ReplacesWhatTheDocumentHeld) {
    XMLDocument document;
    document.appendChild("Old");
    ASSERT_TRUE(document.parseXMLString("<A/>"));
    ASSERT_TRUE(document.parseXMLString("<B/>"));
    EXPECT_EQ(document.toXMLString(false, false), "<B/>");
}

TEST(XMLDocumentParse, RefusesMalformedTextWithReasonAndLine) {
    struct Case {
        std::string text;
        std::string reason;
        int line;
    };
    const std::vector<Case> cases = {
        {"text", "parsing text", 1},
        {"<A", "parsing element", 1},
        {"<A>", "mismatched element", 1},
        {"<A>\n<B>\n</A>\n", "mismatched element", 2},
        {"<A>\n\n<B b></B></A>", "parsing attribute", 3},
        {"<A b='1' b='2'/>", "parsing attribute", 1},
        {"<A/>\n\n\ntext", "parsing text", 4},
        {"<A><!-- comment</A>", "parsing comment", 1},
        {"<A><![CDATA[text</A>", "parsing cdata", 1},
        {"<A/>\n<?xml version='1.0'?>", "parsing declaration", 2},
    };
    for (const auto& [text, reason, line] : cases) {
        XMLDocument document;
        EXPECT_FALSE(document.parseXMLString(text)) << text;
        EXPECT_EQ(document.parseErrorText(), reason) << text;
        EXPECT_EQ(document.parseErrorLine(), line) << text;
    }
}

TEST(XMLDocumentParse, RefusesTextWithoutAnyContent) {
    for (const std::string& text : {std::string(), std::string(" \n\t"), std::string(1, '\0')}) {
        XMLDocument document;
        EXPECT_FALSE(document.parseXMLString(text));
        EXPECT_EQ(document.parseErrorText(), "empty document");
    }
}

TEST(XMLDocumentParse, RefusesElementsNestedTooDeeply) {
    XMLDocument document;
    EXPECT_TRUE(document.parseXMLString(nested(50)));
    EXPECT_FALSE(document.parseXMLString(nested(100000)));
    EXPECT_NE(document.parseErrorText().find("depth exceeded"), std::string::npos) << document.parseErrorText();
}

TEST(XMLDocumentParse, FailureEmptiesTheDocument) {
    for (const char* const text : {"<A><B>", "", "text"}) {
        XMLDocument document;
        ASSERT_TRUE(document.parseXMLString("<Old/>"));
        EXPECT_FALSE(document.parseXMLString(text)) << text;
        EXPECT_FALSE(document.rootElement().isValid()) << text;
        EXPECT_EQ(document.toXMLString(false, false), "") << text;
    }
}

TEST(XMLDocumentParse, SuccessClearsAnEarlierFailure) {
    XMLDocument document;
    EXPECT_FALSE(document.parseXMLString("<A>\n<B>"));
    EXPECT_TRUE(document.parseXMLString("<A/>"));
    EXPECT_EQ(document.parseErrorText(), "");
    EXPECT_EQ(document.parseErrorLine(), 0);
    EXPECT_EQ(document.toXMLString(false, false), "<A/>");
}

TEST(XMLDocumentParse, ADocumentTakesElementsAfterAFailure) {
    XMLDocument document;
    EXPECT_FALSE(document.parseXMLString("<A>"));
    document.appendChild("B");
    EXPECT_EQ(document.toXMLString(false, false), "<B/>");
}

TEST(XMLDocumentParse, TextEndsAtItsFirstNul) {
    XMLDocument document;
    EXPECT_TRUE(document.parseXMLString(std::string("<A/>\0<B>", 8)));
    EXPECT_EQ(document.toXMLString(false, false), "<A/>");
}

TEST(XMLDocumentBorrowed, WorksOnTheCallersDocumentAndDoesNotDeleteIt) {
    tinyxml2::XMLDocument callers;
    {
        const XMLDocument borrowed(&callers);
        EXPECT_EQ(borrowed.type(), 1);
        EXPECT_EQ(borrowed.get(), static_cast<tinyxml2::XMLNode*>(&callers));
        borrowed.appendChild("A").appendChildInt("B", 5);
        EXPECT_EQ(borrowed.toXMLString(false, false), "<A><B>5</B></A>");
    }
    ASSERT_NE(callers.FirstChildElement("A"), nullptr);
    EXPECT_STREQ(callers.FirstChildElement("A")->FirstChildElement("B")->GetText(), "5");
}

TEST(XMLDocumentBorrowed, ParsesIntoTheCallersDocument) {
    tinyxml2::XMLDocument callers;
    XMLDocument borrowed(&callers);
    EXPECT_TRUE(borrowed.parseXMLString("<A/>"));
    EXPECT_NE(callers.FirstChildElement("A"), nullptr);
}

void expectHoldsNoDocument(void* handle) {
    XMLDocument none(handle);
    EXPECT_FALSE(none.parseXMLString("<A/>"));
    EXPECT_EQ(none.parseErrorText(), "");
    EXPECT_EQ(none.parseErrorLine(), 0);
    EXPECT_EQ(none.toXMLString(false, false), "");
    EXPECT_EQ(none.toXMLString(true, true), "");
    EXPECT_FALSE(none.rootElement().isValid());
    EXPECT_FALSE(none.appendChild("A").isValid());
}

TEST(XMLDocumentBorrowed, WithoutADocumentDoesNothing) {
    tinyxml2::XMLDocument callers;
    callers.Parse("<A>text</A>");
    tinyxml2::XMLNode* const element = callers.FirstChildElement();
    expectHoldsNoDocument(nullptr);
    expectHoldsNoDocument(element);
    expectHoldsNoDocument(element->FirstChild());
    tinyxml2::XMLPrinter printer(nullptr, true);
    callers.Print(&printer);
    EXPECT_STREQ(printer.CStr(), "<A>text</A>");
}

TEST(XMLDocumentParse, ByteOrderMarkIsIgnoredAndNotPrinted) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("\xEF\xBB\xBF<A/>"));
    EXPECT_EQ(document.rootElement().elementName(), "A");
    EXPECT_EQ(document.toXMLString(false, false), "<A/>");
    EXPECT_EQ(document.toXMLString(true, false), R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?><A/>)");
}

TEST(XMLDocument, HandleAssignedThroughTheBaseLeavesOwnershipAlone) {
    XMLDocument first;
    XMLDocument second;
    second.appendChild("Second");
    XMLNode& handle = first;
    handle = second;
    EXPECT_EQ(first.rootElement().elementName(), "Second");
}  // each deletes its own: the address sanitizer would tell

TEST(XMLDocumentParse, ARefusedTextLeavesNoByteOrderMark) {
    for (const char* const text : {"\xEF\xBB\xBF<A><B></A>", "\xEF\xBB\xBF"}) {
        XMLDocument document;
        EXPECT_FALSE(document.parseXMLString(text));
        EXPECT_EQ(document.toXMLString(false, false), "");
        document.appendChild("X");
        EXPECT_EQ(document.toXMLString(false, false), "<X/>");
    }
}

}  // namespace
}  // namespace lv

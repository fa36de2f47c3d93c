#include <lvdata/xml/detail/SourceText.h>

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

const tinyxml2::XMLElement* firstNamed(const tinyxml2::XMLElement* element, const std::string& name) {
    if (element == nullptr || element->Name() == name) {
        return element;
    }
    for (const auto* child = element->FirstChildElement(); child != nullptr; child = child->NextSiblingElement()) {
        if (const auto* const found = firstNamed(child, name)) {
            return found;
        }
    }
    return nullptr;
}

/// What the source gives as the text of the first element named "a".
std::string plainText(const std::string& source) {
    tinyxml2::XMLDocument document;
    EXPECT_EQ(document.Parse(source.c_str(), source.size()), tinyxml2::XML_SUCCESS) << source;
    const tinyxml2::XMLElement* const element = firstNamed(document.RootElement(), "a");
    if (element == nullptr) {
        ADD_FAILURE() << "no element in " << source;
        return {};
    }
    return std::string(SourceText(source, document.RootElement()->Name()).plainTextOf(element->Name()));
}

TEST(SourceText, GivesThePlainTextOfAnElement) {
    EXPECT_EQ(plainText("<a>5|6</a>"), "5|6");
    EXPECT_EQ(plainText("<r><b>1</b><a>5|6</a><c/></r>"), "5|6");
    EXPECT_EQ(plainText("<r><ab>1</ab><a>5|6 \n</a></r>"), "5|6 \n");
    EXPECT_EQ(plainText("<r><a\n x=\"1\" y=\"2\" >5</a></r>"), "5");
    EXPECT_EQ(plainText("<r><a>5</a ></r>"), "5");
    EXPECT_EQ(plainText(R"(<r><a x="it is ' here">5</a></r>)"), "") << "an apostrophe needs a closer look";
}

TEST(SourceText, ADeclarationMayStandInFrontOfTheRoot) {
    EXPECT_EQ(plainText("<?xml version=\"1.0\"?><r><a>5</a></r>"), "5");
    EXPECT_EQ(plainText("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n\t <r><a>5</a></r>"), "5");
}

TEST(SourceText, AnythingElseInFrontOfTheRootGivesNoAnswer) {
    EXPECT_EQ(plainText("<!-- <r> --><r><a>5</a></r>"), "");
    EXPECT_EQ(plainText("\xEF\xBB\xBF<r><a>5</a></r>"), "");
    EXPECT_EQ(plainText(" <r><a>5</a></r>"), "");
    EXPECT_EQ(plainText("<?xml version=\"1.0\"?><!-- --><r><a>5</a></r>"), "");
}

TEST(SourceText, TextThatTheXMLLibraryChangesGivesNoAnswer) {
    EXPECT_EQ(plainText("<r><a>5&#54;</a></r>"), "");
    EXPECT_EQ(plainText("<r><a>5\r\n6</a></r>"), "");
    EXPECT_EQ(plainText("<r><a>\v</a></r>"), "") << "blanks alone are no text";
    EXPECT_EQ(plainText("<r><a>\f</a></r>"), "") << "blanks alone are no text";
    EXPECT_EQ(plainText("<r><a> 5</a></r>"), "");
    EXPECT_EQ(plainText("<r><a>\n</a></r>"), "");
    EXPECT_EQ(plainText("<r><a></a></r>"), "");
}

TEST(SourceText, AnythingButTextInTheElementGivesNoAnswer) {
    EXPECT_EQ(plainText("<r><a>5<!-- 6 -->7</a></r>"), "");
    EXPECT_EQ(plainText("<r><a><!-- 6 -->7</a></r>"), "");
    EXPECT_EQ(plainText("<r><a><![CDATA[5]]></a></r>"), "");
    EXPECT_EQ(plainText("<r><a>5<b/></a></r>"), "");
    EXPECT_EQ(plainText("<r><a><b>5</b></a></r>"), "");
}

TEST(SourceText, TextBehindAnEmptyElementIsNotItsOwn) {
    EXPECT_EQ(plainText("<r><a/>5</r>"), "");
    EXPECT_EQ(plainText("<r><a />5</r>"), "");
    EXPECT_EQ(plainText("<r><a x=\"1\"/>5</r>"), "");
}

TEST(SourceText, AClosingBracketInAnAttributeGivesNoAnswer) {
    EXPECT_EQ(plainText("<r><a x=\">\">5</a></r>"), "");
    EXPECT_EQ(plainText("<r><a x=\">9\" y=\">8\">5</a></r>"), "");
    EXPECT_EQ(plainText("<r><a x='>9' y='>8'>5</a></r>"), "");
    EXPECT_EQ(plainText("<r><a x='\">9\"'>5</a></r>"), "");
}

TEST(SourceText, ANameThatIsKeptElsewhereGivesNoAnswer) {
    const std::string source = "<r><a>5</a></r>";
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse(source.c_str()), tinyxml2::XML_SUCCESS);
    const SourceText text(source, document.RootElement()->Name());
    document.RootElement()->FirstChildElement()->SetName("a");
    EXPECT_EQ(text.plainTextOf(document.RootElement()->FirstChildElement()->Name()), "");
}

TEST(SourceText, AnotherTextThanTheParsedOneGivesNoAnswer) {
    const std::string source = "<r><a>5</a></r>";
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse(source.c_str()), tinyxml2::XML_SUCCESS);
    const char* const root = document.RootElement()->Name();
    const char* const name = document.RootElement()->FirstChildElement()->Name();
    EXPECT_EQ(SourceText("<s><a>5</a></s>", root).plainTextOf(name), "");
    EXPECT_EQ(SourceText("<r><b>5</b></r>", root).plainTextOf(name), "");
    EXPECT_EQ(SourceText("<r", root).plainTextOf(name), "");
    EXPECT_EQ(SourceText("", root).plainTextOf(name), "");
}

}  // namespace
}  // namespace lv::detail

#include <lvdata/xml/detail/element_reading.h>
#include <lvdata/xml/detail/parsed_array.h>

#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

tinyxml2::XMLElement* firstNamed(tinyxml2::XMLElement* element, const std::string& name) {
    if (element == nullptr || element->Name() == name) {
        return element;
    }
    for (auto* child = element->FirstChildElement(); child != nullptr; child = child->NextSiblingElement()) {
        if (auto* const found = firstNamed(child, name)) {
            return found;
        }
    }
    return nullptr;
}

/// A document and its first element named "a".
class Parsed {
public:
    explicit Parsed(const std::string& text) {
        EXPECT_EQ(document_.Parse(text.c_str(), text.size()), tinyxml2::XML_SUCCESS) << text;
        element_ = firstNamed(document_.RootElement(), "a");
        EXPECT_NE(element_, nullptr) << text;
    }

    [[nodiscard]] tinyxml2::XMLElement* element() { return element_; }

private:
    tinyxml2::XMLDocument document_;
    tinyxml2::XMLElement* element_ = nullptr;
};

struct Result {
    bool found;
    std::vector<int> values;
};

bool operator==(const Result& left, const Result& right) {
    return left.found == right.found && left.values == right.values;
}

void PrintTo(const Result& result, std::ostream* out) {
    *out << (result.found ? "found " : "missed ") << testing::PrintToString(result.values);
}

Result asParsed(const std::string& text) {
    Parsed document(text);
    Result result{false, {77}};
    result.found = readParsedArray(document.element(), result.values);
    return result;
}

/// The same the long way.
Result asNode(const std::string& text) {
    Parsed document(text);
    Result result{false, {77}};
    result.found = readArray(document.element(), result.values, arraySeparator);
    return result;
}

/// Whether the array is read where it was parsed. What the XML library is asked for, it ends with a NUL, so an
/// untouched text still has what follows it.
bool isReadInPlace(const std::string& text) {
    Parsed document(text);
    std::vector<int> values;
    EXPECT_TRUE(readParsedArray(document.element(), values));
    const tinyxml2::XMLAttribute* attribute = document.element()->FirstAttribute();
    while (attribute != nullptr && attribute->Next() != nullptr) {
        attribute = attribute->Next();
    }
    const char* const before = attribute == nullptr ? document.element()->Name() : attribute->Value();
    const char* const after = before + std::strlen(before) + 1;
    return std::strchr(after, '<') != nullptr;
}

TEST(ParsedArray, IsReadWhereItWasParsed) {
    if (!keepsTextsWhereParsed()) {
        GTEST_SKIP() << "not known of this version of the XML library, and not relied on";
    }
    for (const char* const text :
         {"<a>5|6</a>", "<r><b>1</b><a>5|6</a><c/></r>", "<r><a >7</a></r>", "<r><a>5</a ></r>",
          "<?xml version=\"1.0\"?><!-- <a>1</a> --><r><a>-5|66|777</a></r>", "\xEF\xBB\xBF<r><a>5</a></r>",
          "<r>a r a<a>5|6</a></r>", "<r><a x=\"1\">5|6</a></r>", "<r><a y='>' x='1'>5|6</a></r>",
          "<r><a\n x = \"\" >5</a></r>", "<r><a x='&lt;&#49;'>5|6</a></r>", "<r><a x='<'>5|6</a></r>",
          "<r><a>12|345678901|</a></r>"}) {
        EXPECT_EQ(asParsed(text), asNode(text)) << text;
    }
    EXPECT_TRUE(isReadInPlace("<r><a>5|6</a></r>"));
    EXPECT_TRUE(isReadInPlace("<r><a x=\"1\">5|6</a></r>"));
    EXPECT_TRUE(isReadInPlace("<r><a x=\"1\" y=\"2\">5|6</a></r>"));
    EXPECT_FALSE(isReadInPlace("<r><a x=\"&amp;\">5|6</a></r>"));
    EXPECT_FALSE(isReadInPlace("<r><a x=\"<\">5|6</a></r>"));
    EXPECT_FALSE(isReadInPlace("<r><a> 5|6</a></r>")) << "the test itself";
}

TEST(ParsedArray, ThatIsNotPlainIsReadByTheGeneralParser) {
    for (const char* const text :
         {"<r><a>5&#54;</a></r>", "<r><a>5\r\n6</a></r>", "<r><a>5|6 \n</a></r>", "<r><a> 5</a></r>",
          "<r><a>5<!-- 6 -->7</a></r>", "<r><a><!-- 6 -->7</a></r>", "<r><a><![CDATA[5]]></a></r>",
          "<r><a>5<b/></a></r>", "<r><a><b>5</b></a></r>", "<r><a>&#124;1|2</a></r>", "<r><a>>5</a></r>",
          "<r><a x='1'>>5</a></r>", "<r><a>+5|6</a></r>", "<r><a>5|6|seven</a></r>", "<r><a>5|&#55;|8</a></r>"}) {
        EXPECT_EQ(asParsed(text), asNode(text)) << text;
    }
}

TEST(ParsedArray, IsNotFoundWithoutText) {
    for (const char* const text : {"<r><a></a></r>", "<r><a/>5</r>", "<r><a />5|6</r>", "<r><a x='1'/>5</r>",
                                   "<r><a> \n</a></r>", "<r><a>\v</a></r>", "<r><a x='5'></a></r>"}) {
        EXPECT_EQ(asParsed(text), (Result{false, {77}})) << text;
        EXPECT_EQ(asNode(text), (Result{false, {77}})) << text;
    }
    std::vector<int> values;
    EXPECT_FALSE(readParsedArray(nullptr, values));
}

/// A value of an attribute that holds entities leaves its last characters after it, where the rest of the tag is looked
/// for: here they look like one, with a text and an end tag.
TEST(ParsedArray, DoesNotReadTheRestOfAnAttributeValue) {
    for (const char* const value : {"&quot;>1</", "&apos;>7</", "&gt;&gt;>1</a", "&amp;&amp;>1|2</a", "&lt;&lt;>1</a",
                                    "\r\n\r\n\r\n\r\n\r\n>1</"}) {
        const std::string text = std::string("<r><a x='") + value + "'>5|6</a></r>";
        Parsed document(text);
        ASSERT_NE(document.element()->Attribute("x"), nullptr);
        Result result{false, {}};
        result.found = readParsedArray(document.element(), result.values);
        EXPECT_EQ(result, (Result{true, {5, 6}})) << text;
    }
}

TEST(ParsedArray, IsReadAtEveryLengthOfItsText) {
    std::string array = "1|-22|333|-4444|55555|-666666|7777777|-88888888|999999999|-1000000000";
    for (; !array.empty(); array.pop_back()) {
        std::string text = "<r><a>";
        text += array + "</a></r>";
        EXPECT_EQ(asParsed(text), asNode(text)) << text;
    }
}

}  // namespace
}  // namespace lv::detail

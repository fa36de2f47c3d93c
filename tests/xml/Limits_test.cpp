#include <lvdata/xml/Limits.h>

#include <tests/support/document_with_markup.h>

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using lv::Excess;
using lv::findExcess;
using lv::Limits;
using lv::test::documentWithMarkup;
using What = lv::Excess::What;

/// No limit but this one.
Limits only(std::size_t Limits::*member, std::size_t limit) {
    constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    Limits limits{none, none, none, none, none};
    limits.*member = limit;
    return limits;
}

/// "LINE: REASON"; empty when the text is within the limit.
std::string found(const std::string& text, std::size_t Limits::*member, std::size_t limit) {
    const auto excess = findExcess(text, only(member, limit));
    return excess ? std::to_string(excess->line) + ": " + excess->toString() : "";
}

TEST(Limits, AreThoseThatTheDocumentationNames) {
    const Limits limits;
    EXPECT_EQ(limits.bytes, 67'108'864U);
    EXPECT_EQ(limits.elements, 250'000U);
    EXPECT_EQ(limits.nodes, 1'000'000U);
    EXPECT_EQ(limits.attributes, 100U);
    EXPECT_EQ(limits.brokenReferences, 100U);
}

TEST(Limits, ForBytesIsTheLargestSizeAccepted) {
    EXPECT_EQ(found("<a/>", &Limits::bytes, 4), "");
    EXPECT_EQ(found("<a/>", &Limits::bytes, 3), "0: more than 3 bytes");
    EXPECT_EQ(found("<a/>", &Limits::bytes, 1), "0: more than 1 byte");
    EXPECT_EQ(found("", &Limits::bytes, 0), "");
}

TEST(Limits, ForElementsIsTheLargestNumberAccepted) {
    const std::string document = documentWithMarkup("<!-- <a/> --><![CDATA[<a/>]]><a>\n<b/></a>\n<c d='<e/>'></c>");
    EXPECT_EQ(found(document, &Limits::elements, 5), "");
    EXPECT_EQ(found(document, &Limits::elements, 4), "4: more than 4 elements");
    EXPECT_EQ(found(document, &Limits::elements, 2), "3: more than 2 elements");
    EXPECT_EQ(found(document, &Limits::elements, 1), "2: more than 1 element");
    EXPECT_EQ(found(document, &Limits::elements, 0), "1: more than 0 elements");
}

TEST(Limits, ForElementsDoesNotCountAnEndTagWithABlankBeforeItsSlash) {
    EXPECT_EQ(found("<a>< /a>", &Limits::elements, 1), "");
}

TEST(Limits, ForNodesIsTheLargestNumberAccepted) {
    const std::string document = documentWithMarkup("<a b='1' c='2'/>\n<!-- d -->e<!f>\n <![CDATA[g]]>");
    EXPECT_EQ(found(document, &Limits::nodes, 10), "");
    EXPECT_EQ(found(document, &Limits::nodes, 7), "4: more than 7 nodes");
    EXPECT_EQ(found(document, &Limits::nodes, 6), "3: more than 6 nodes");
    EXPECT_EQ(found(document, &Limits::nodes, 4), "3: more than 4 nodes");
    EXPECT_EQ(found(document, &Limits::nodes, 3), "2: more than 3 nodes");
    EXPECT_EQ(found(document, &Limits::nodes, 1), "2: more than 1 node");
    EXPECT_EQ(found(document, &Limits::nodes, 0), "1: more than 0 nodes");
}

TEST(Limits, ForNodesDoesNotCountEndTagsAndBlanks) {
    EXPECT_EQ(found(documentWithMarkup("<a> </a b='1'> \n "), &Limits::nodes, 4), "");
}

TEST(Limits, ForNodesCountsEveryTextThatIsNotBlank) {
    for (char character = '!'; character <= '~'; ++character) {
        const bool isMarkup = character == '<' || character == '&';
        const std::string text = isMarkup ? "." : std::string(1, character);
        EXPECT_EQ(found("<a>" + text + "</a>", &Limits::nodes, 1), "1: more than 1 node") << text;
    }
}

TEST(Limits, ForAttributesIsTheLargestNumberAccepted) {
    const std::string document =
        documentWithMarkup("<a/>\n<a b='1' c=\"'>\"/>\n<a d = 'x' e='</a>' f='\"/>'><a g=''/></a>");
    EXPECT_EQ(found(document, &Limits::attributes, 3), "");
    EXPECT_EQ(found(document, &Limits::attributes, 2), "4: more than 2 attributes per element");
    EXPECT_EQ(found(document, &Limits::attributes, 1), "3: more than 1 attribute per element");
}

TEST(Limits, ForAttributesAlsoCountsThoseOfEndTags) {
    const std::string document = documentWithMarkup("<a></a b='1' c='2'>");
    EXPECT_EQ(found(document, &Limits::attributes, 2), "");
    EXPECT_EQ(found(document, &Limits::attributes, 1), "2: more than 1 attribute per element");
}

TEST(Limits, ForAttributesIgnoresTextThatOnlyLooksLikeThem) {
    const std::string look = " a='1' b='2' ";
    const std::string markup = "text" + look + "<!--<a" + look + ">--><![CDATA[<a" + look + ">]]><!X" + look + ">";
    EXPECT_EQ(found(documentWithMarkup(markup), &Limits::attributes, 0), "");
}

TEST(Limits, ForBrokenReferencesIsTheLargestNumberAccepted) {
    const std::string document = documentWithMarkup("<a>&# &#1 </a>\n<a>&#65;&#65 &#x &#65\n&#;&#66;</a>");
    EXPECT_EQ(found(document, &Limits::brokenReferences, 3), "");
    EXPECT_EQ(found(document, &Limits::brokenReferences, 2), "3: more than 2 broken references per text");
    EXPECT_EQ(found(document, &Limits::brokenReferences, 1), "2: more than 1 broken reference per text");
}

TEST(Limits, ForBrokenReferencesAlsoCountsThoseInAttributes) {
    const std::string document = documentWithMarkup("<a b='&#&#;'\nc='&#<a>&#'\nd=\"&#'\"/>");
    EXPECT_EQ(found(document, &Limits::brokenReferences, 2), "");
    EXPECT_EQ(found(document, &Limits::brokenReferences, 1), "3: more than 1 broken reference per text");
}

TEST(Limits, ForBrokenReferencesIgnoresMarkupThatHoldsNone) {
    const std::string markup = "<!--&#&#--><![CDATA[&#&#]]><!X &#&#>&lt;&amp;#";
    EXPECT_EQ(found(documentWithMarkup(markup), &Limits::brokenReferences, 0), "");
}

TEST(Excess, SaysWhatAndWhere) {
    const auto excess = findExcess("<a>\n<b/></a>", only(&Limits::elements, 1));
    ASSERT_TRUE(excess);
    EXPECT_EQ(excess->what, What::elements);
    EXPECT_EQ(excess->limit, 1U);
    EXPECT_EQ(excess->position, 4U);
    EXPECT_EQ(excess->line, 2);
}

TEST(Excess, CountsTheLineBreakThatADocumentBeginsWith) {
    EXPECT_EQ(found("\n<a/>", &Limits::elements, 0), "2: more than 0 elements");
}

TEST(Excess, IsTheFirst) {
    EXPECT_EQ(found("<a>text\n<b/></a>", &Limits::nodes, 1), "1: more than 1 node");
    EXPECT_EQ(found("<a><!-- b -->\n<c/></a>", &Limits::nodes, 1), "1: more than 1 node");
    EXPECT_EQ(found("<a>b\n>&#</a>", &Limits::brokenReferences, 0), "1: more than 0 broken references per text");
}

// The XML library refuses such a document there.
TEST(Excess, IsNotLookedForAfterAnAttributeWithoutQuotationMarks) {
    EXPECT_EQ(found("<a b=1><c/></a>", &Limits::elements, 1), "");
    EXPECT_EQ(found("<a b><c/></a>", &Limits::elements, 1), "");
}

TEST(Excess, OfBytesIsAtTheFirstByteTooMany) {
    const auto excess = findExcess("<a>\n<b/></a>", only(&Limits::bytes, 7));
    ASSERT_TRUE(excess);
    EXPECT_EQ(excess->what, What::bytes);
    EXPECT_EQ(excess->limit, 7U);
    EXPECT_EQ(excess->position, 7U);
    EXPECT_EQ(excess->line, 0);
}

TEST(Excess, IsLookedForAfterANul) {
    EXPECT_EQ(found(std::string("<a>\0<b/></a>", 12), &Limits::elements, 1), "1: more than 1 element");
}

// Each beginning of a document stands in memory of just its size, so that the address sanitizer notices a byte too
// many.
TEST(Excess, IsLookedForWithinTheTextAlone) {
    const std::string document = "<a b='1' c = \"2\"/>< d >&#</d><!-- e --><?f?><g";
    for (std::size_t size = 1; size <= document.size(); ++size) {
        const std::vector<char> beginning(document.begin(), document.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_FALSE(findExcess({beginning.data(), size}, Limits())) << size;
    }
}

}  // namespace

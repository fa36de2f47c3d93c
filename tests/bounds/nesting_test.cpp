#include <tests/bounds/documents.h>
#include <tests/support/refusal.h>
#include <tests/support/samples.h>

#include <lvdata/xml/XMLDocument.h>

#include <tinyxml2.h>

// How deep elements may stand in one another: deeper ones are refused before they could use up the stack.

namespace lv::test {
namespace {

/// So many elements fit into one another, the root included: the XML library counts its document, too, and the level
/// at which it stops.
constexpr std::size_t deepest = TINYXML2_MAX_ELEMENT_DEPTH - 2;

/// A document of AssetInfo that nests so many elements and holds "Asset1" after them.
std::string nested(std::size_t elements) {
    const std::size_t unknown = elements - 1;
    return documentOf<AssetInfo>(repeated("<a>", unknown) + repeated("</a>", unknown) + "<Asset1>one</Asset1>");
}

TEST(Nesting, IsReadDownToTheLimit) {
    for (const std::size_t elements : {std::size_t{2}, deepest - 1, deepest}) {
        AssetInfo expected;
        expected.asset1.set("one");
        EXPECT_EQ(describe(parsed<AssetInfo>(nested(elements))), describe(expected)) << elements;
    }
}

TEST(Nesting, IsRefusedBeyondTheLimit) {
    for (const std::size_t elements : {deepest + 1, deepest + 2, std::size_t{1'000}, std::size_t{1'000'000}}) {
        expectRefusedUnchanged(filled<AssetInfo>(), nested(elements));
    }
}

TEST(Nesting, IsRefusedWhereNothingIsClosed) {
    for (const std::string start : {"<a>", "<a b='1'>", "<AssetInfo><!-- -->", "<a>text"}) {
        expectRefusedUnchanged(filled<AssetInfo>(), repeated(start, 1'000'000));
    }
}

TEST(Nesting, LeavesADocumentThatCanBeUsed) {
    XMLDocument document;
    EXPECT_FALSE(document.parseXMLString(nested(deepest + 1)));
    EXPECT_FALSE(document.rootElement().isValid());
    ASSERT_TRUE(document.parseXMLString(nested(deepest)));
    EXPECT_EQ(document.rootElement().getElement("Asset1").elementName(), "Asset1");
}

}  // namespace
}  // namespace lv::test

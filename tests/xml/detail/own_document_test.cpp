#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/own_document.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

using ::testing::ElementsAre;

/// Reads an array while a source is in use that says something else than the document.
std::vector<int> readWithSource(void* document, const XMLElement& root, const std::string& source) {
    const SourceInUse use(document, source);
    std::vector<int> values;
    root.getIntArray("a", values, "|");
    return values;
}

TEST(SourceInUse, ArraysAreReadFromTheSourceWhileItLives) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<r><a>1|2</a></r>"));
    const XMLElement root = document.rootElement();
    EXPECT_THAT(readWithSource(document.get(), root, "<r><a>3|4</a></r>"), ElementsAre(3, 4));
    std::vector<int> values;
    root.getIntArray("a", values, "|");
    EXPECT_THAT(values, ElementsAre(1, 2)) << "the source is out of use";
}

TEST(SourceInUse, DocumentsOfOthersAreReadThemselves) {
    tinyxml2::XMLDocument others;
    ASSERT_EQ(others.Parse("<r><a>1|2</a></r>"), tinyxml2::XML_SUCCESS);
    const XMLDocument document(static_cast<tinyxml2::XMLNode*>(&others));
    EXPECT_THAT(readWithSource(document.get(), document.rootElement(), "<r><a>3|4</a></r>"), ElementsAre(1, 2));
}

TEST(SourceInUse, NeedsNeitherDocumentNorRoot) {
    const XMLDocument empty;
    const SourceInUse withoutRoot(empty.get(), "<r/>");
    const SourceInUse withoutDocument(nullptr, "<r/>");
    EXPECT_FALSE(empty.rootElement().isValid());
}

class FinishElementTest : public ::testing::Test {
protected:
    /// The children of the root element once its only child was handed to `finishElement`.
    std::size_t childrenLeft() {
        const XMLElement root = document_.appendChild("r");
        const XMLElement child = root.appendChildInt("a", 5);
        finishElement(child.get());
        return root.getElements("a").size();
    }

    [[nodiscard]] void* document() const { return document_.get(); }
    [[nodiscard]] std::string text() const { return document_.toXMLString(false, false); }

private:
    XMLDocument document_;
};

TEST_F(FinishElementTest, LeavesOnlyTheTextOnceAnnouncedAndStarted) {
    expectCompactText(document());
    startPieces(document());
    EXPECT_EQ(childrenLeft(), 0U);
    EXPECT_EQ(text(), "<r><a>5</a></r>");
}

TEST_F(FinishElementTest, DoesNothingUnlessStarted) {
    expectCompactText(document());
    EXPECT_EQ(childrenLeft(), 1U);
    EXPECT_EQ(text(), "<r><a>5</a></r>");
}

TEST_F(FinishElementTest, DoesNothingUnlessAnnounced) {
    startPieces(document());
    EXPECT_EQ(childrenLeft(), 1U);
}

TEST_F(FinishElementTest, DoesNothingWithoutAnElement) {
    finishElement(nullptr);
    finishElement(document());
    EXPECT_EQ(text(), "");
}

}  // namespace
}  // namespace lv::detail

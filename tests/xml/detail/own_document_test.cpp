#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/element_writing.h>
#include <lvdata/xml/detail/own_document.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

using ::testing::ElementsAre;

const int theRecord = 0;  // only their addresses matter
const int otherRecord = 0;

std::vector<int> arrayOf(const XMLElement& root) {
    std::vector<int> values;
    root.getIntArray("a", values, "|");
    return values;
}

/// What `reader` reads while there is a source for the record that says something else than the document.
std::vector<int> readWithSource(const XMLDocument& document, const std::string& source,
                                const void* reader = &theRecord) {
    const SourceForRecord use(document.get(), source, &theRecord);
    useSource(document.rootElement().get(), reader);
    return arrayOf(document.rootElement());
}

TEST(SourceForRecord, ArraysAreReadFromTheSourceWhileItLives) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<r><a>1|2</a></r>"));
    EXPECT_THAT(readWithSource(document, "<r><a>3|4</a></r>"), ElementsAre(3, 4));
    EXPECT_THAT(arrayOf(document.rootElement()), ElementsAre(1, 2)) << "the source is out of use";
}

TEST(SourceForRecord, OnlyThatRecordTakesItIntoUse) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<r><a>1|2</a></r>"));
    EXPECT_THAT(readWithSource(document, "<r><a>3|4</a></r>", &otherRecord), ElementsAre(1, 2));
}

TEST(SourceForRecord, OutOfUseUntilTheRecordTakesIt) {
    XMLDocument document;
    ASSERT_TRUE(document.parseXMLString("<r><a>1|2</a></r>"));
    const SourceForRecord use(document.get(), "<r><a>3|4</a></r>", &theRecord);
    EXPECT_THAT(arrayOf(document.rootElement()), ElementsAre(1, 2));
}

TEST(SourceForRecord, DocumentsOfOthersAreReadThemselves) {
    tinyxml2::XMLDocument others;
    ASSERT_EQ(others.Parse("<r><a>1|2</a></r>"), tinyxml2::XML_SUCCESS);
    const XMLDocument document(static_cast<tinyxml2::XMLNode*>(&others));
    EXPECT_THAT(readWithSource(document, "<r><a>3|4</a></r>"), ElementsAre(1, 2));
}

TEST(SourceForRecord, NeedsNeitherDocumentNorRoot) {
    const XMLDocument empty;
    const SourceForRecord withoutRoot(empty.get(), "<r/>", &theRecord);
    const SourceForRecord withoutDocument(nullptr, "<r/>", &theRecord);
    useSource(nullptr, &theRecord);
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
    expectCompactText(document(), &theRecord);
    startPieces(document(), &theRecord);
    EXPECT_EQ(childrenLeft(), 0U);
    EXPECT_EQ(text(), "<r><a>5</a></r>");
}

TEST_F(FinishElementTest, DoesNothingUnlessStarted) {
    expectCompactText(document(), &theRecord);
    EXPECT_EQ(childrenLeft(), 1U);
    EXPECT_EQ(text(), "<r><a>5</a></r>");
}

TEST_F(FinishElementTest, DoesNothingForAnotherRecord) {
    expectCompactText(document(), &theRecord);
    startPieces(document(), &otherRecord);
    EXPECT_EQ(childrenLeft(), 1U);
}

TEST_F(FinishElementTest, DoesNothingUnlessAnnounced) {
    startPieces(document(), &theRecord);
    EXPECT_EQ(childrenLeft(), 1U);
}

TEST_F(FinishElementTest, DoesNothingWithoutAnElement) {
    finishElement(nullptr);
    finishElement(document());
    EXPECT_EQ(text(), "");
}

class AppendPieceTest : public ::testing::Test {
protected:
    AppendPieceTest() {
        expectCompactText(document_.get(), &theRecord);
        startPieces(document_.get(), &theRecord);
        root_ = document_.appendChild("r");
    }

    void startAgain() { startPieces(document_.get(), &theRecord); }
    [[nodiscard]] const XMLElement& root() const { return root_; }
    [[nodiscard]] std::string text() const { return document_.toXMLString(false, false); }

private:
    XMLDocument document_;
    XMLElement root_;
};

TEST_F(AppendPieceTest, MakesNoNodeButTheSameText) {
    EXPECT_TRUE(appendPiece(root().get(), "a", "1 < 2 & \"3\""));
    EXPECT_TRUE(appendPiece(root().get(), "b", ""));
    EXPECT_TRUE(appendPiece(root().get(), "c", std::string(100, 'x')));
    EXPECT_FALSE(root().getElement("a").isValid());
    EXPECT_EQ(text(), R"(<r><a>1 &lt; 2 &amp; "3"</a><b></b><c>)" + std::string(100, 'x') + "</c></r>");
}

TEST_F(AppendPieceTest, KeepsTheOrderOfChildren) {
    EXPECT_TRUE(appendPiece(root().get(), "a", "1"));
    const XMLElement inner = root().appendChild("inner");
    EXPECT_TRUE(appendPiece(inner.get(), "b", "2"));
    EXPECT_TRUE(appendPiece(root().get(), "c", "3"));
    EXPECT_TRUE(appendPiece(inner.get(), "d", "4"));
    EXPECT_TRUE(root().appendChildInt("e", 5).isValid());
    EXPECT_TRUE(appendPiece(root().get(), "f", "6"));
    EXPECT_EQ(text(), "<r><a>1</a><inner><b>2</b><d>4</d></inner><c>3</c><e>5</e><f>6</f></r>");
}

TEST_F(AppendPieceTest, ATextBehindItStaysBehindIt) {
    EXPECT_TRUE(appendPiece(root().get(), "a", "1"));
    setText(root().get(), 2U);
    EXPECT_TRUE(appendPiece(root().get(), "b", "3"));
    EXPECT_EQ(text(), "<r><a>1</a>2<b>3</b></r>");
}

TEST_F(AppendPieceTest, AttributesMayFollow) {
    EXPECT_TRUE(appendPiece(root().get(), "a", "1"));
    setAttribute(root().get(), "Version", 2);
    EXPECT_EQ(text(), R"(<r Version="2"><a>1</a></r>)");
}

TEST_F(AppendPieceTest, PiecesOfAFinishedElementAreInIt) {
    for (const char* value : {"1", "2"}) {
        const XMLElement row = root().appendChild("row");
        EXPECT_TRUE(appendPiece(row.get(), "a", value));
        finishElement(row.get());
    }
    EXPECT_TRUE(appendPiece(root().get(), "b", "3"));
    EXPECT_EQ(text(), "<r><row><a>1</a></row><row><a>2</a></row><b>3</b></r>");
}

TEST_F(AppendPieceTest, StartedTwiceItGoesOn) {
    EXPECT_TRUE(appendPiece(root().get(), "a", "1"));
    startAgain();
    EXPECT_TRUE(appendPiece(root().get(), "b", "2"));
    EXPECT_EQ(text(), "<r><a>1</a><b>2</b></r>");
}

TEST_F(AppendPieceTest, TheTextCanBeTakenTwice) {
    EXPECT_TRUE(appendPiece(root().get(), "a", "1"));
    EXPECT_EQ(text(), "<r><a>1</a></r>");
    EXPECT_TRUE(appendPiece(root().get(), "b", "2"));
    EXPECT_EQ(text(), "<r><a>1</a><b>2</b></r>");
}

TEST(AppendPiece, DoesNothingWherePiecesAreNotStarted) {
    const XMLDocument document;
    const XMLElement root = document.appendChild("r");
    EXPECT_FALSE(appendPiece(root.get(), "a", "1"));
    tinyxml2::XMLDocument others;
    startPieces(static_cast<tinyxml2::XMLNode*>(&others), &theRecord);
    EXPECT_FALSE(appendPiece(static_cast<tinyxml2::XMLNode*>(others.NewElement("r")), "a", "1"));
    EXPECT_FALSE(appendPiece(document.get(), "a", "1"));
    EXPECT_FALSE(appendPiece(nullptr, "a", "1"));
    EXPECT_EQ(document.toXMLString(false, false), "<r/>");
}

TEST(AppendLeaf, AppendsANodeWherePiecesAreNotStarted) {
    const XMLDocument document;
    const XMLElement root = document.appendChild("r");
    EXPECT_TRUE(appendLeaf(root.get(), "a", -5));
    EXPECT_TRUE(appendLeaf(root.get(), "b", std::vector<unsigned int>{1, 2}));
    EXPECT_FALSE(appendLeaf(nullptr, "a", -5));
    EXPECT_FALSE(appendLeaf(document.get(), "a", -5)) << "one root element is all";
    EXPECT_EQ(root.getElements("a").size(), 1U);
    EXPECT_EQ(document.toXMLString(false, false), "<r><a>-5</a><b>1|2</b></r>");
}

}  // namespace
}  // namespace lv::detail

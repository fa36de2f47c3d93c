#include <lvdata/analysis/Tree.h>

#include <lvdata/core/ParsedDocument.h>
#include <lvdata/records/AssetInfo.h>
#include <lvdata/xml/XMLDocument.h>

#include <gtest/gtest.h>

using lv::analysis::Node;
using lv::analysis::Tree;

namespace {

std::string shown(const Node& node) {
    std::string text;
    for (const Node& child : lv::analysis::childrenOf(node)) {
        switch (child.kind) {
        case Node::Kind::element:
            text += "<" + std::string(child.name) + shown(child) + ">";
            break;
        case Node::Kind::attribute:
            text += " @" + std::string(child.name) + "=" + std::string(child.text);
            break;
        case Node::Kind::comment:
            text += "#" + std::string(child.text);
            break;
        case Node::Kind::text:
            text += " '" + std::string(child.text) + "'";
            break;
        default:
            text += "?";
        }
    }
    return text;
}

std::string shownSource(const std::string& text) {
    lv::ParsedDocument document(text);
    return shown(Tree(document.view()).document());
}

std::string shownPrinted(const std::string& text) {
    return shown(Tree::ofPrinted(text).document());
}

}  // namespace

TEST(Tree, HasAllThatADocumentHolds) {
    EXPECT_EQ(shownSource("<!--1--><A a='x' b='&lt;'>t&amp;<B/>u<![CDATA[<v>]]><!--2--><C><D/></C></A><E/>"),
              "#1<A @a=x @b=< 't&'<B> 'u' '<v>'#2<C<D>>><E>");
    EXPECT_EQ(shownSource("<?xml version='1.0'?><A/>"), "?<A>");
    EXPECT_EQ(shownSource("<A>"), "");
}

TEST(Tree, HasTheSameOfAPrintedTextAsOfTheDocument) {
    for (const std::string text : {"<A/>", "<A></A>", "<A a=\"1\" b=\"&quot;&apos;\"/>", "<A>x&amp;y&lt;&gt;</A>",
                                   "<A><B/><C>1|2</C><C c=\"\">3</C></A>"}) {
        EXPECT_EQ(shownPrinted(text), shownSource(text)) << text;
    }
}

TEST(Tree, KeepsWhatParsingWouldChangeOfAPrintedText) {
    EXPECT_EQ(shownPrinted("<A> </A>"), "<A ' '>");
    EXPECT_EQ(shownPrinted("<A>\r</A>"), "<A '\r'>");
    EXPECT_EQ(shownSource("<A> </A>"), "<A>");
}

TEST(Tree, KnowsLines) {
    lv::ParsedDocument document("<A>\n<B\nb='1'>text</B>\n<!--c--></A>");
    const Tree tree(document.view());
    const Node& b = *tree.root()->firstChild;
    EXPECT_EQ(b.line, 2);
    EXPECT_EQ(lv::analysis::attributeOf(b, "b")->line, 3);
    EXPECT_EQ(b.next->line, 4);
    EXPECT_EQ(b.parent, tree.root());
}

TEST(Tree, FindsTheTextThatARecordReads) {
    const auto textOf = [](const std::string& xml) {
        lv::ParsedDocument document(xml);
        const Tree tree(document.view());
        const Node* const text = lv::analysis::textOf(*tree.root());
        return text == nullptr ? "none" : std::string(text->text);
    };
    EXPECT_EQ(textOf("<A a='1'><!-- c -->x<B/>y</A>"), "x");
    EXPECT_EQ(textOf("<A><B/>y</A>"), "none");
    EXPECT_EQ(textOf("<A><!p>y</A>"), "none");
    EXPECT_EQ(textOf("<A/>"), "none");
}

TEST(Tree, KeepsItsNodesWhenMoved) {
    lv::AssetInfo asset;
    asset.asset1.set("a < b");
    Tree tree = Tree::ofPrinted(asset.toXMLString(false, false));
    const Node* const root = tree.root();
    const Tree moved = std::move(tree);
    EXPECT_EQ(moved.root(), root);
    EXPECT_EQ(shown(moved.document()), "<AssetInfo @Version=1 @MinorVersion=0<Asset1 'a < b'>>");
}

TEST(Tree, HandlesDeepNestingWithoutRecursion) {
    std::string text;
    for (int depth = 0; depth < 90; ++depth) {
        text += "<A>";
    }
    for (int depth = 0; depth < 90; ++depth) {
        text += "</A>";
    }
    EXPECT_EQ(shownSource(text), shownPrinted(text));
}

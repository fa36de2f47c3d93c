#include <lvdata/xml/XMLNode.h>

#include <type_traits>
#include <vector>

#include <gtest/gtest.h>
#include <tinyxml2.h>

namespace lv {
namespace {

static_assert(std::has_virtual_destructor_v<XMLNode>);
static_assert(std::is_copy_constructible_v<XMLNode> && std::is_copy_assignable_v<XMLNode>);

class XMLNodeOfDocument : public testing::Test {
protected:
    XMLNodeOfDocument() { document_.Parse("<?xml version='1.0'?><!DOCTYPE A><A><!-- comment -->text</A>"); }

    [[nodiscard]] tinyxml2::XMLElement* element() { return document_.FirstChildElement(); }

    tinyxml2::XMLDocument document_;
};

TEST(XMLNode, WithoutANodeIsInvalidAndOfNoType) {
    for (const XMLNode& node : {XMLNode(), XMLNode(nullptr)}) {
        EXPECT_FALSE(node.isValid());
        EXPECT_EQ(node.get(), nullptr);
        EXPECT_EQ(node.type(), 0);
    }
}

TEST_F(XMLNodeOfDocument, TypeIsOneForADocument) {
    EXPECT_EQ(XMLNode(&document_).type(), 1);
}

TEST_F(XMLNodeOfDocument, TypeIsTwoForAnElement) {
    EXPECT_EQ(XMLNode(element()).type(), 2);
}

TEST_F(XMLNodeOfDocument, TypeIsZeroForAnythingElse) {
    tinyxml2::XMLNode* const declaration = document_.FirstChild();
    tinyxml2::XMLNode* const doctype = declaration->NextSibling();
    ASSERT_NE(declaration->ToDeclaration(), nullptr);
    ASSERT_NE(doctype->ToUnknown(), nullptr);
    ASSERT_NE(element()->FirstChild()->ToComment(), nullptr);
    ASSERT_NE(element()->LastChild()->ToText(), nullptr);
    EXPECT_EQ(XMLNode(declaration).type(), 0);
    EXPECT_EQ(XMLNode(doctype).type(), 0);
    EXPECT_EQ(XMLNode(element()->FirstChild()).type(), 0);
    EXPECT_EQ(XMLNode(element()->LastChild()).type(), 0);
}

TEST_F(XMLNodeOfDocument, ReturnsTheHandleItWasMadeWith) {
    tinyxml2::XMLNode* const node = element();
    XMLNode wrapper(node);
    const XMLNode& constWrapper = wrapper;
    EXPECT_TRUE(wrapper.isValid());
    EXPECT_EQ(wrapper.get(), node);
    EXPECT_EQ(constWrapper.get(), node);
}

TEST_F(XMLNodeOfDocument, CopyingCopiesTheHandle) {
    const XMLNode wrapper(element());
    const std::vector<XMLNode> copies(2, wrapper);
    XMLNode assigned;
    assigned = wrapper;
    EXPECT_EQ(copies.front().get(), wrapper.get());
    EXPECT_EQ(copies.back().get(), wrapper.get());
    EXPECT_EQ(assigned.get(), wrapper.get());
}

TEST_F(XMLNodeOfDocument, NeverOwnsTheNode) {
    { const XMLNode wrapper(element()); }
    { const XMLNode wrapper(&document_); }
    ASSERT_NE(element(), nullptr);
    EXPECT_STREQ(element()->GetText(), "text");
}

}  // namespace
}  // namespace lv

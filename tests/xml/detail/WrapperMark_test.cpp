#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/WrapperMark.h>

#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

bool isMarkedWhenPassed(XMLElement element) {  // NOLINT(performance-unnecessary-value-param): as records take it
    return WrapperMark::isAsParsed(element);
}

/// A class of an application that takes an element and passes it on, by copy or by move.
bool isMarkedWhenPassedOn(XMLElement element) {  // NOLINT(performance-unnecessary-value-param)
    return isMarkedWhenPassed(element);
}
bool isMarkedWhenMovedOn(XMLElement element) {
    return isMarkedWhenPassed(std::move(element));  // NOLINT(performance-move-const-arg)
}

class WrapperMarkTest : public ::testing::Test {
protected:
    [[nodiscard]] tinyxml2::XMLElement* node() const { return toElement(root_); }
    [[nodiscard]] const XMLElement& root() const { return root_; }

private:
    XMLDocument document_;
    XMLElement root_ = document_.appendChild("Root");
};

TEST_F(WrapperMarkTest, AMarkArrivesWhereItIsPassedDirectly) {
    EXPECT_TRUE(isMarkedWhenPassed(WrapperMark::asParsed(node())));
    const bool yes = true;
    EXPECT_TRUE(isMarkedWhenPassed(yes ? WrapperMark::asParsed(node()) : XMLElement(root())));
    EXPECT_FALSE(isMarkedWhenPassed(root()));
}

TEST_F(WrapperMarkTest, AMarkIsLostWhenTheWrapperIsPassedOn) {
    EXPECT_FALSE(isMarkedWhenPassedOn(WrapperMark::asParsed(node())));
    EXPECT_FALSE(isMarkedWhenMovedOn(WrapperMark::asParsed(node())));
}

TEST_F(WrapperMarkTest, AMarkedWrapperIsLikeAnyOther) {
    const auto& marked = WrapperMark::asParsed(node());
    EXPECT_EQ(marked.get(), root().get());
    EXPECT_TRUE(marked.isValid());
    EXPECT_EQ(marked.type(), XMLNode::elementType);
    EXPECT_EQ(marked.elementName(), "Root");
    EXPECT_FALSE(WrapperMark::isAsParsed(marked.getStringValue(*std::make_unique<std::string>())));
}

TEST_F(WrapperMarkTest, NothingCanBeMarked) {
    EXPECT_TRUE(isMarkedWhenPassed(WrapperMark::asParsed(nullptr)));
    EXPECT_FALSE(WrapperMark::asParsed(nullptr).isValid());
    EXPECT_EQ(WrapperMark::asParsed(nullptr).get(), nullptr);
}

TEST_F(WrapperMarkTest, AMarkedParentIsNotAParsedElementAndViceVersa) {
    XMLElement parent = root();
    WrapperMark::markParent(parent);
    EXPECT_TRUE(WrapperMark::isMarkedParent(parent));
    EXPECT_FALSE(WrapperMark::isAsParsed(parent));
    EXPECT_EQ(parent.get(), root().get());
    EXPECT_FALSE(WrapperMark::isMarkedParent(WrapperMark::asParsed(node())));
}

TEST_F(WrapperMarkTest, CopiesAndAssignmentTakeTheMarkAway) {
    XMLElement parent = root();
    WrapperMark::markParent(parent);
    const XMLNode copy = parent;
    EXPECT_FALSE(WrapperMark::isMarkedParent(copy));
    EXPECT_EQ(copy.get(), root().get());
    parent = XMLElement(parent);
    EXPECT_FALSE(WrapperMark::isMarkedParent(parent));
    EXPECT_EQ(parent.get(), root().get());
}

}  // namespace
}  // namespace lv::detail

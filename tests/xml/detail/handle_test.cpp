#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/detail/handle.h>

#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

bool isMarkedWhenPassed(XMLElement element) {  // NOLINT(performance-unnecessary-value-param): as records take it
    return Handover::isAsParsed(element);
}

/// A class of an application that takes an element and passes it on, by copy or by move.
bool isMarkedWhenPassedOn(XMLElement element) {  // NOLINT(performance-unnecessary-value-param)
    return isMarkedWhenPassed(element);
}
bool isMarkedWhenMovedOn(XMLElement element) {
    return isMarkedWhenPassed(std::move(element));  // NOLINT(performance-move-const-arg)
}

class HandoverTest : public ::testing::Test {
protected:
    [[nodiscard]] tinyxml2::XMLElement* node() const { return toElement(root_); }
    [[nodiscard]] const XMLElement& root() const { return root_; }

private:
    XMLDocument document_;
    XMLElement root_ = document_.appendChild("Root");
};

TEST_F(HandoverTest, AMarkArrivesWhereItIsPassedDirectly) {
    EXPECT_TRUE(isMarkedWhenPassed(Handover::asParsed(node())));
    const bool yes = true;
    EXPECT_TRUE(isMarkedWhenPassed(yes ? Handover::asParsed(node()) : XMLElement(root())));
    EXPECT_FALSE(isMarkedWhenPassed(root()));
}

TEST_F(HandoverTest, NobodyCanPassItOn) {
    EXPECT_FALSE(isMarkedWhenPassedOn(Handover::asParsed(node())));
    EXPECT_FALSE(isMarkedWhenMovedOn(Handover::asParsed(node())));
}

TEST_F(HandoverTest, AMarkedWrapperIsLikeAnyOther) {
    const auto& marked = Handover::asParsed(node());
    EXPECT_EQ(marked.get(), root().get());
    EXPECT_TRUE(marked.isValid());
    EXPECT_EQ(marked.type(), XMLNode::elementType);
    EXPECT_EQ(marked.elementName(), "Root");
    EXPECT_FALSE(Handover::isAsParsed(marked.getStringValue(*std::make_unique<std::string>())));
}

TEST_F(HandoverTest, NothingCanBeMarked) {
    EXPECT_TRUE(isMarkedWhenPassed(Handover::asParsed(nullptr)));
    EXPECT_FALSE(Handover::asParsed(nullptr).isValid());
    EXPECT_EQ(Handover::asParsed(nullptr).get(), nullptr);
}

TEST_F(HandoverTest, AMarkedParentIsNoParsedElementAndTheReverse) {
    XMLElement parent = root();
    Handover::markParent(parent);
    EXPECT_TRUE(Handover::isMarkedParent(parent));
    EXPECT_FALSE(Handover::isAsParsed(parent));
    EXPECT_EQ(parent.get(), root().get());
    EXPECT_FALSE(Handover::isMarkedParent(Handover::asParsed(node())));
}

TEST_F(HandoverTest, CopiesAndAssignmentTakeTheMarkAway) {
    XMLElement parent = root();
    Handover::markParent(parent);
    const XMLNode copy = parent;
    EXPECT_FALSE(Handover::isMarkedParent(copy));
    EXPECT_EQ(copy.get(), root().get());
    parent = XMLElement(parent);
    EXPECT_FALSE(Handover::isMarkedParent(parent));
    EXPECT_EQ(parent.get(), root().get());
}

}  // namespace
}  // namespace lv::detail

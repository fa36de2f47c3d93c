#include <lvdata/xml/detail/ChildFinder.h>
#include <lvdata/xml/detail/element_reading.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tinyxml2.h>

namespace lv::detail {
namespace {

class ChildFinderTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(document_.Parse("<r><!-- --><a>1</a>text<b>2</b><a>3</a><c>4</c><b>5</b><d>6</d></r>"),
                  tinyxml2::XML_SUCCESS);
    }

    [[nodiscard]] tinyxml2::XMLElement* parent() { return document_.RootElement(); }

    /// The text of the child that was found; "none" without one.
    static std::string textOf(const tinyxml2::XMLElement* child) {
        std::string text = "none";
        (void)readText(child, text);
        return text;
    }

private:
    tinyxml2::XMLDocument document_;
};

TEST_F(ChildFinderTest, FindsTheFirstOfEachNameInTheirOrder) {
    ChildFinder children(parent());
    EXPECT_EQ(textOf(children.find("a")), "1");
    EXPECT_EQ(textOf(children.find("b")), "2");
    EXPECT_EQ(textOf(children.find("c")), "4");
    EXPECT_EQ(textOf(children.find("d")), "6");
}

TEST_F(ChildFinderTest, FindsTheFirstOfEachNameInAnyOrder) {
    ChildFinder children(parent());
    EXPECT_EQ(textOf(children.find("d")), "6");
    EXPECT_EQ(textOf(children.find("b")), "2");
    EXPECT_EQ(textOf(children.find("a")), "1");
    EXPECT_EQ(textOf(children.find("c")), "4");
}

TEST_F(ChildFinderTest, AMissingNameDoesNotHideTheOthers) {
    ChildFinder children(parent());
    EXPECT_EQ(textOf(children.find("a")), "1");
    EXPECT_EQ(children.find("e"), nullptr);
    EXPECT_EQ(children.find("B"), nullptr);
    EXPECT_EQ(textOf(children.find("b")), "2");
}

TEST_F(ChildFinderTest, ACopyFindsTheSame) {
    ChildFinder children(parent());
    EXPECT_EQ(textOf(children.find("a")), "1");
    ChildFinder copy = children;
    EXPECT_EQ(textOf(copy.find("b")), "2");
    EXPECT_EQ(textOf(children.find("c")), "4");
    EXPECT_EQ(textOf(children.find("d")), "6");
}

TEST_F(ChildFinderTest, NamesThatBeginAlikeAreDifferent) {
    tinyxml2::XMLDocument document;
    ASSERT_EQ(document.Parse("<r><ab>1</ab><a>2</a><abc>3</abc></r>"), tinyxml2::XML_SUCCESS);
    ChildFinder children(document.RootElement());
    EXPECT_EQ(textOf(children.find("a")), "2");
    EXPECT_EQ(textOf(children.find("abc")), "3");
    EXPECT_EQ(textOf(children.find("ab")), "1");
}

TEST_F(ChildFinderTest, FindsAllOfAName) {
    const std::vector<tinyxml2::XMLElement*> found = findChildren(parent(), "b");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(textOf(found[0]), "2");
    EXPECT_EQ(textOf(found[1]), "5");
    EXPECT_EQ(textOf(findChild(parent(), "b")), "2");
}

TEST_F(ChildFinderTest, FindsNothingWithoutAnElement) {
    EXPECT_EQ(ChildFinder(nullptr).find("a"), nullptr);
    EXPECT_EQ(findChild(nullptr, "a"), nullptr);
    EXPECT_TRUE(findChildren(nullptr, "a").empty());
}

}  // namespace
}  // namespace lv::detail

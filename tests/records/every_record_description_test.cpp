#include <tests/support/DescribedNode.h>
#include <tests/support/conditions_of.h>
#include <tests/support/every_record.h>

#include <lvdata/records/RecordClass.h>

#include <set>

#include <gmock/gmock.h>

namespace lv::test {
namespace {

using Kind = Condition::Kind;

bool needsSubjects(const Condition& condition) {
    return condition.kind != Kind::anyOf && condition.kind != Kind::hlgSwitch;
}

bool isArray(const Description& node) {
    return node.content == Description::Content::unsignedArray || node.content == Description::Content::signedArray;
}

bool isNumeric(const Description& node) {
    return isArray(node) || node.content == Description::Content::unsignedNumber ||
           node.content == Description::Content::signedNumber;
}

template <class Record>
using EveryRecordDescription = EveryRecordTest<Record>;

TYPED_TEST_SUITE(EveryRecordDescription, EveryRecord, RecordName);

TYPED_TEST(EveryRecordDescription, BeginsWithTheRootElementAndItsVersions) {
    const TypeParam fresh;
    const Description root = TypeParam::describe();
    EXPECT_EQ(root.name, TypeParam::rootElementName);
    EXPECT_EQ(root.record, TypeParam::rootElementName);
    EXPECT_EQ(root.version, fresh.version.value);
    EXPECT_EQ(root.minorVersion, fresh.minorVersion.value);
    ASSERT_GT(root.children.size(), 2U);
    for (const auto& [attribute, name] : {std::pair(root.children[0], "Version"), {root.children[1], "MinorVersion"}}) {
        EXPECT_EQ(attribute.name, name);
        EXPECT_EQ(attribute.place, Description::Place::attribute);
        EXPECT_EQ(attribute.content, Description::Content::unsignedNumber);
        EXPECT_EQ(attribute.flag.value().toString(), ". has text");
    }
}

TYPED_TEST(EveryRecordDescription, NamesEachElementOnceUnderOneParent) {
    const Description root = TypeParam::describe();
    for (const DescribedNode& node : withDescendants(DescribedNode(root))) {
        std::set<std::string> steps;
        std::set<Description::Content> texts;
        for (const Description& child : node->children) {
            const bool isText = child.place == Description::Place::text;
            const bool isNew = isText ? texts.insert(child.content).second : steps.insert(child.xpathStep()).second;
            EXPECT_TRUE(isNew) << node.name() << " has " << child.xpathStep() << " twice";
        }
    }
}

TYPED_TEST(EveryRecordDescription, KnowsEverySubjectOfACondition) {
    const Description root = TypeParam::describe();
    for (const DescribedNode& node : withDescendants(DescribedNode(root))) {
        for (const Condition& condition : conditionsOf(*node)) {
            EXPECT_NE(condition.subjects.empty(), needsSubjects(condition)) << node.name();
            for (const std::string& subject : condition.subjects) {
                EXPECT_NO_THROW(static_cast<void>(node.at(subject))) << node.name() << ": " << condition.toString();
            }
        }
    }
}

TYPED_TEST(EveryRecordDescription, HasConsistentFactsForEachNode) {
    const Description root = TypeParam::describe();
    for (const DescribedNode& node : withDescendants(DescribedNode(root))) {
        EXPECT_EQ(node->name.empty(), node->place == Description::Place::text) << node.name();
        EXPECT_EQ(node->quantity.has_value(), isNumeric(*node)) << node.name();
        EXPECT_TRUE(node->lengths.empty() || isArray(*node)) << node.name();
        EXPECT_TRUE(!node->isOptional || node->flag) << node.name() << " has no flag that it could be written by";
        EXPECT_EQ(node->keyAttribute.empty(), node->repetition != Description::Repetition::byKey) << node.name();
        EXPECT_EQ(node->children.empty(), node->content != Description::Content::none) << node.name();
    }
}

TYPED_TEST(EveryRecordDescription, HasKeysAsConstantAttributes) {
    const Description root = TypeParam::describe();
    for (const DescribedNode& node : withDescendants(DescribedNode(root))) {
        if (node->repetition == Description::Repetition::byKey) {
            EXPECT_EQ(node.at('@' + node->keyAttribute)->constant, node->keyText) << node.name();
        }
    }
}

TYPED_TEST(EveryRecordDescription, HoldsNestedRecordsAsTheyDescribeThemselves) {
    const Description root = TypeParam::describe();
    for (const DescribedNode& node : ownNodes(root)) {
        if (!node->record.empty() && node.hasParent()) {
            const RecordClass* const nested = recordClass(node->record);
            ASSERT_NE(nested, nullptr) << node.name();
            const Description alone = nested->describe();
            EXPECT_EQ(node->name, alone.name);
            EXPECT_EQ(node->version, alone.version);
            EXPECT_EQ(node->minorVersion, alone.minorVersion);
            EXPECT_EQ(node->children.size(), alone.children.size()) << node.name();
        }
    }
}

}  // namespace
}  // namespace lv::test

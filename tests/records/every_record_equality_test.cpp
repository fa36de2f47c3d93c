#include <tests/support/CompleteDocument.h>
#include <tests/support/every_record.h>

#include <type_traits>

namespace lv::test {
namespace {

template <class Record>
class EveryRecordEquality : public EveryRecordTest<Record> {
protected:
    static Record read(CompleteDocument& document) {
        Record record;
        EXPECT_TRUE(record.parseXMLString(document.text()));
        return record;
    }
};

TYPED_TEST_SUITE(EveryRecordEquality, EveryRecord, RecordName);

/// Another text of the same kind than `sampleText` gives.
std::string otherText(const Description& node) {
    std::string text = sampleText(node);
    text.back() = text == "true" ? 'x' : '8';
    return text;
}

TYPED_TEST(EveryRecordEquality, HoldsForCopiesAndForTheSameDocument) {
    const Description root = TypeParam::describe();
    CompleteDocument document(root);
    const TypeParam record = this->read(document);
    const TypeParam copy = record;
    EXPECT_TRUE(record == copy);
    EXPECT_FALSE(record != copy);
    EXPECT_TRUE(record == this->read(document));
    EXPECT_TRUE(TypeParam() == TypeParam());
    EXPECT_FALSE(record == TypeParam());
    EXPECT_TRUE(record != TypeParam());
}

/// In nested records, too.
TYPED_TEST(EveryRecordEquality, SeesEachValueThatADocumentHolds) {
    const Description root = TypeParam::describe();
    for (const DescribedNode& node : withDescendants(DescribedNode(root))) {
        if (node->content != Description::Content::none && !node->constant) {
            CompleteDocument document(root);
            document.makeRead(node);
            const TypeParam record = this->read(document);
            document.setText(node, otherText(*node));
            EXPECT_FALSE(record == this->read(document)) << node.name();
            EXPECT_TRUE(record != this->read(document)) << node.name();
        }
    }
}

/// But for flags that follow from a value, which stays as it was: the values do not differ without them.
TYPED_TEST(EveryRecordEquality, SeesEachFlagThatADocumentSets) {
    const Description root = TypeParam::describe();
    for (const DescribedNode& node : withDescendants(DescribedNode(root))) {
        if (node->flag && node->flag->kind != Condition::Kind::notEmpty && node.hasParent()) {
            CompleteDocument document(root);
            document.makeRead(node);
            TypeParam record = this->read(document);
            const TypeParam before = record;
            document.falsify(*node->flag, node);
            ASSERT_TRUE(record.parseXMLString(document.text()));
            EXPECT_FALSE(record == before) << node.name();
        }
    }
}

TYPED_TEST(EveryRecordEquality, DoesNotSeeWhatNoDocumentHolds) {
    TypeParam record;
    record.writeHLGSystemGamma = true;
    EXPECT_TRUE(record == TypeParam());
}

TYPED_TEST(EveryRecordEquality, ComparesFlagAndValueOfProperties) {
    const property<TypeParam> unset;
    property<TypeParam> flagged;
    flagged.hasValue = true;
    property<TypeParam> changed;
    changed.value.version.value += 1;
    EXPECT_TRUE(unset == property<TypeParam>());
    EXPECT_TRUE(unset != flagged);
    EXPECT_TRUE(unset != changed);
}

}  // namespace
}  // namespace lv::test

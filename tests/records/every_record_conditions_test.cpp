#include <tests/support/CompleteDocument.h>
#include <tests/support/every_record.h>

#include <algorithm>

// What the descriptions say of conditions is tried on documents: what a document has is written as long as its
// conditions hold, and vanishes when one of them does not.

namespace lv::test {
namespace {

template <class Record>
class EveryRecordCondition : public EveryRecordTest<Record> {
protected:
    /// Whether the node is in what is printed when the document was read.
    static bool isPrinted(CompleteDocument& document, const DescribedNode& node) {
        Record record = read(document);
        record.writeHLGSystemGamma = document.hlgSwitch();
        tinyxml2::XMLDocument printed;
        EXPECT_EQ(printed.Parse(record.toXMLString(false, false).c_str()), tinyxml2::XML_SUCCESS);
        return node.isIn(printed);
    }

    static Record read(CompleteDocument& document) {
        Record record;
        EXPECT_TRUE(record.parseXMLString(document.text()));
        return record;
    }

    /// Whether reading looks at the node: without it the record is another.
    static bool isRead(CompleteDocument& document, const DescribedNode& node) {
        const Record with = read(document);
        document.remove(node);
        return with != read(document);
    }

    Description root_ = Record::describe();
};

TYPED_TEST_SUITE(EveryRecordCondition, EveryRecord, RecordName);

TYPED_TEST(EveryRecordCondition, ThatHoldsLetsTheNodeBeWritten) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        CompleteDocument document(this->root_);
        document.makeWritten(node);
        EXPECT_TRUE(this->isPrinted(document, node)) << node.name();
    }
}

/// The number of ways in which a condition can be made false.
std::size_t waysToFail(const Condition& condition, const DescribedNode& node) {
    switch (condition.kind) {
    case Condition::Kind::noneOf:
        return condition.texts.size();
    case Condition::Kind::haveEntries:
    case Condition::Kind::rule:
        return condition.subjects.size();
    case Condition::Kind::isSet: {
        const DescribedNode subject = node.at(condition.subjects.at(0));
        return waysToFail(subject->flag.value(), subject);
    }
    default:
        return 1;
    }
}

TYPED_TEST(EveryRecordCondition, ThatDoesNotHoldKeepsTheNodeFromBeingWritten) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        for (const Condition& condition : node->writtenWhen) {
            for (std::size_t way = 0; way < waysToFail(condition, node); ++way) {
                CompleteDocument document(this->root_);
                document.makeWritten(node);
                document.falsify(condition, node, way);
                EXPECT_FALSE(this->isPrinted(document, node)) << node.name() << ": " << condition.toString();
            }
        }
    }
}

TYPED_TEST(EveryRecordCondition, OnSeveralTextsHoldsForEachOfThem) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        for (const Condition& condition : node->writtenWhen) {
            for (const std::string& text : condition.texts) {
                CompleteDocument document(this->root_);
                document.makeWritten(node);
                const bool wasPrinted = this->isPrinted(document, node);
                document.setText(node.at(condition.subjects.at(0)), text);
                const bool otherConditionsAsk =
                    std::count_if(node->writtenWhen.begin(), node->writtenWhen.end(),
                                  [&](const Condition& other) { return other.subjects == condition.subjects; }) > 1;
                EXPECT_TRUE(wasPrinted);
                EXPECT_TRUE(this->isPrinted(document, node) || otherConditionsAsk) << node.name() << ": " << text;
            }
        }
    }
}

TYPED_TEST(EveryRecordCondition, ThatGatesReadingMakesTheNodeBeIgnored) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        for (const Condition& condition : node->readWhen) {
            CompleteDocument read(this->root_);
            read.makeRead(node);
            EXPECT_TRUE(this->isRead(read, node)) << node.name();
            for (std::size_t way = 0; way < waysToFail(condition, node); ++way) {
                CompleteDocument ignored(this->root_);
                ignored.makeRead(node);
                ignored.falsify(condition, node, way);
                EXPECT_FALSE(this->isRead(ignored, node)) << node.name() << ": " << condition.toString();
            }
        }
    }
}

TYPED_TEST(EveryRecordCondition, OnAFlagDecidesWhetherTheNodeIsWritten) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        if (node->isOptional) {
            for (std::size_t way = 0; way < waysToFail(*node->flag, node); ++way) {
                CompleteDocument document(this->root_);
                document.makeWritten(node);
                document.falsify(*node->flag, node, way);
                EXPECT_FALSE(this->isPrinted(document, node)) << node.name() << ": " << node->flag->toString();
            }
        }
    }
}

/// Of several elements that set a flag, each is enough.
TYPED_TEST(EveryRecordCondition, OnAFlagThatSeveralElementsSetHoldsWithOneOfThem) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        const bool isAny = node->isOptional && node->flag->kind != Condition::Kind::haveEntries;
        for (const std::string& kept : isAny ? node->flag->subjects : std::vector<std::string>()) {
            CompleteDocument document(this->root_);
            document.makeWritten(node);
            for (const std::string& subject : node->flag->subjects) {
                if (subject != kept) {
                    document.remove(node.at(subject));
                }
            }
            EXPECT_TRUE(this->isPrinted(document, node)) << node.name() << " with " << kept << " alone";
        }
    }
}

TYPED_TEST(EveryRecordCondition, OnLengthsLetsExactlyTheseLengthsBeWritten) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        for (const std::size_t length : node->lengths) {
            for (const std::size_t entries : {length - 1, length, length + 1}) {
                CompleteDocument document(this->root_);
                document.makeWritten(node);
                document.setText(node, sampleArray(entries));
                EXPECT_EQ(this->isPrinted(document, node), entries == length) << node.name() << ": " << entries;
            }
        }
    }
}

/// Whether the node is written even by a record that was just made.
bool isWrittenAlways(const DescribedNode& node) {
    return !node->isOptional && node->writtenWhen.empty() && node->repetition != Description::Repetition::rows &&
           node->place != Description::Place::text && (!node.hasParent() || isWrittenAlways(node.parent()));
}

TYPED_TEST(EveryRecordCondition, IsNeededByAllThatAFreshRecordDoesNotWrite) {
    tinyxml2::XMLDocument printed;
    ASSERT_EQ(printed.Parse(TypeParam().toXMLString(false, false).c_str()), tinyxml2::XML_SUCCESS);
    for (const DescribedNode& node : withDescendants(DescribedNode(this->root_))) {
        EXPECT_EQ(node.isIn(printed), isWrittenAlways(node)) << node.name();
    }
}

/// A constant is written back whatever the document had, and reading does not look at it, unless it is a key.
TYPED_TEST(EveryRecordCondition, DoesNotDependOnConstants) {
    for (const DescribedNode& node : ownNodes(this->root_)) {
        if (node->constant && node.parent()->repetition != Description::Repetition::byKey) {
            CompleteDocument document(this->root_);
            document.makeWritten(node);
            const TypeParam record = this->read(document);
            document.setText(node, "another");
            EXPECT_EQ(this->read(document), record) << node.name();
            tinyxml2::XMLDocument printed;
            ASSERT_EQ(printed.Parse(record.toXMLString(false, false).c_str()), tinyxml2::XML_SUCCESS);
            EXPECT_EQ(node.text(printed), *node->constant) << node.name();
        }
    }
}

}  // namespace
}  // namespace lv::test

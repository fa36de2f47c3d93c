#include <tests/support/DescribedNode.h>
#include <tests/support/conditions_of.h>
#include <tests/support/every_record.h>

#include <lvdata/core/checked.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

namespace lv::test {
namespace {

using Lengths = std::vector<std::size_t>;

/// The numbers of entries with which an array is written; none: any number.
Lengths lengthsOf(const Description& node) {
    Lengths lengths = node.lengths;
    for (const Condition& condition : conditionsOf(node)) {
        if (condition.kind == Condition::Kind::haveEntries) {
            lengths.push_back(condition.entries);
        }
    }
    return lengths;
}

bool isWritten(const Description& node, std::size_t length) {
    const Lengths lengths = lengthsOf(node);
    return lengths.empty() || std::find(lengths.begin(), lengths.end(), length) != lengths.end();
}

bool isStored(const Description& node, std::size_t length, const Quantity& quantity) {
    const std::vector<double> values(length, 0.5);
    std::vector<unsigned int> numbers;
    std::vector<int> signedNumbers;
    return node.content == Description::Content::unsignedArray ? trySet(numbers, values, quantity)
                                                               : trySet(signedNumbers, values, quantity);
}

std::vector<Quantity> quantitiesOf(const Description& node) {
    std::vector<Quantity> quantities = {node.quantity.value()};
    for (const Description::QuantityWhen& other : node.otherQuantities) {
        quantities.push_back(other.quantity);
    }
    return quantities;
}

void expectLengthsToAgree(const DescribedNode& node) {
    for (const Quantity& quantity : quantitiesOf(*node)) {
        for (const std::size_t length : Lengths{0, 1, 2, 3, 4, 5, 8, 9, 10, 255, 256, 257, 1023, 1024, 1025}) {
            EXPECT_EQ(isStored(*node, length, quantity), isWritten(*node, length))
                << node.name() << ", " << quantity.name << ", " << length;
        }
    }
}

template <class Record>
using EveryRecordLengths = EveryRecordTest<Record>;

TYPED_TEST_SUITE(EveryRecordLengths, EveryRecord, RecordName);

TYPED_TEST(EveryRecordLengths, CheckedSettersTakeTheLengthsThatAreWritten) {
    const Description record = TypeParam::describe();
    for (const DescribedNode& node : ownNodes(record)) {
        if (node->content == Description::Content::unsignedArray ||
            node->content == Description::Content::signedArray) {
            expectLengthsToAgree(node);
        }
    }
}

}  // namespace
}  // namespace lv::test

#include "Mixture.h"
#include "trials.h"

#include <tests/support/every_record.h>

#include <gmock/gmock.h>

// Memory runs out while a document is read.

namespace lv::test {
namespace {

using ::testing::IsEmpty;

template <class Record>
class MemoryRunsOutParsing : public EveryRecordTest<Record> {
protected:
    /// Reads the document into copies of the record with every allocation failing once. Each copy is left a mixture of
    /// what it was and what the document holds, and reads the document whole afterwards.
    static void readIntoCopiesOf(const Record& record, const std::string& text) {
        const std::string whole = describe(readWhole(record, text));
        const Mixture mixture(describe(record), whole);
        failEveryAllocation([&](std::size_t allocation) {
            Record copy = record;
            const bool failed = fails(allocation, [&] { EXPECT_TRUE(copy.parseXMLString(text)); });
            EXPECT_THAT(mixture.strangersIn(describe(copy)), IsEmpty());
            EXPECT_EQ(describe(readWhole(copy, text)), whole);
            return failed;
        });
    }

    static Record readWhole(Record record, const std::string& text) {
        EXPECT_TRUE(record.parseXMLString(text));
        return record;
    }
};

TYPED_TEST_SUITE(MemoryRunsOutParsing, EveryRecord, RecordName);

TYPED_TEST(MemoryRunsOutParsing, NewRecordIsLeftWithSomeMembersRead) {
    this->readIntoCopiesOf(TypeParam(), compact(filled<TypeParam>()));
}

TYPED_TEST(MemoryRunsOutParsing, FilledRecordIsLeftWithSomeMembersReplaced) {
    this->readIntoCopiesOf(filled<TypeParam>(), this->otherDocument());
}

TYPED_TEST(MemoryRunsOutParsing, RefusedTextLeavesEveryMemberUnchanged) {
    const auto record = filled<TypeParam>();
    const std::string before = describe(record);
    const std::string text = this->otherDocument() + '<';
    failEveryAllocation([&](std::size_t allocation) {
        TypeParam copy = record;
        const bool failed = fails(allocation, [&] { EXPECT_FALSE(copy.parseXMLString(text)); });
        EXPECT_EQ(describe(copy), before);
        return failed;
    });
}

}  // namespace
}  // namespace lv::test

#include "getters.h"
#include "in_threads.h"

#include <tests/support/every_record.h>

// Any number of threads read and print one record while none changes it.

namespace lv::test {
namespace {

template <class Record>
class SharedRecordInThreads : public EveryRecordTest<Record> {};

TYPED_TEST_SUITE(SharedRecordInThreads, EveryRecord, RecordName);

template <class Record>
std::string membersAndGettersOf(const Record& record) {
    return describe(record) + gettersOf(record);
}

TYPED_TEST(SharedRecordInThreads, IsReadAndPrintedAsInOneThread) {
    const auto record = filled<TypeParam>();
    const std::string seen = membersAndGettersOf(record);
    const std::string compactText = compact(record);
    const std::string indentedText = record.toXMLString(true, true);
    inThreads([&] {
        EXPECT_EQ(membersAndGettersOf(record), seen);
        EXPECT_EQ(compact(record), compactText);
        EXPECT_EQ(record.toXMLString(true, true), indentedText);
    });
}

TYPED_TEST(SharedRecordInThreads, IsCopiedAsInOneThread) {
    const auto record = filled<TypeParam>();
    const std::string seen = describe(record);
    inThreads([&] {
        const TypeParam copy = record;
        EXPECT_EQ(describe(copy), seen);
    });
}

}  // namespace
}  // namespace lv::test

#include "in_threads.h"

#include <tests/support/every_record.h>

// Threads that have records of their own do not notice each other.

namespace lv::test {
namespace {

template <class Record>
class OwnRecordsInThreads : public EveryRecordTest<Record> {};

TYPED_TEST_SUITE(OwnRecordsInThreads, EveryRecord, RecordName);

TYPED_TEST(OwnRecordsInThreads, AreParsedIntoAndPrintedAsInOneThread) {
    const std::string text = this->otherDocument();
    const std::string members = describe(parsed<TypeParam>(text));
    const std::string printed = parsed<TypeParam>(text).toXMLString(true, true);
    inThreads([&] {
        const auto record = parsed<TypeParam>(text);
        EXPECT_EQ(describe(record), members);
        EXPECT_EQ(record.toXMLString(true, true), printed);
    });
}

TYPED_TEST(OwnRecordsInThreads, RefuseTextAsInOneThread) {
    const std::string text = this->otherDocument() + '<';
    inThreads([&] {
        auto record = filled<TypeParam>();
        EXPECT_FALSE(record.parseXMLString(text));
        EXPECT_EQ(describe(record), describe(filled<TypeParam>()));
    });
}

}  // namespace
}  // namespace lv::test

#include "trials.h"

#include <tests/support/every_record.h>

// Memory runs out while a document is written.

namespace lv::test {
namespace {

template <class Record>
class MemoryRunsOutPrinting : public EveryRecordTest<Record> {
protected:
    /// Prints the filled record with every allocation failing once. It stays as it is, and prints its whole text after
    /// each failure.
    static void print(bool pretty) {
        const auto record = filled<Record>();
        const std::string text = record.toXMLString(true, pretty);
        const auto printWhole = [&] {
            EXPECT_EQ(record.toXMLString(true, pretty), text);
        };
        failEveryAllocation([&](std::size_t allocation) {
            const bool failed = fails(allocation, printWhole);
            printWhole();
            return failed;
        });
        EXPECT_EQ(describe(record), describe(filled<Record>()));
    }
};

TYPED_TEST_SUITE(MemoryRunsOutPrinting, EveryRecord, RecordName);

TYPED_TEST(MemoryRunsOutPrinting, OfCompactTextLeavesTheRecordUnchanged) {
    this->print(false);
}

TYPED_TEST(MemoryRunsOutPrinting, OfIndentedTextLeavesTheRecordUnchanged) {
    this->print(true);
}

}  // namespace
}  // namespace lv::test

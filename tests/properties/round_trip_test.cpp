#include <tests/properties/AnyRecordTest.h>

// The way of any record into a text and back.

namespace lv::test {
namespace {

class RoundTripOfAnyRecord : public AnyRecordTest {};

INSTANTIATE_TEST_SUITE_P(Every, RoundTripOfAnyRecord, testing::ValuesIn(everyRecord()), nameOf);

TEST_P(RoundTripOfAnyRecord, KeepsWhatTheFormatKeepsAndDropsWhatItDrops) {
    expectHolds([] {
        const SharedRecord record = anyRecord();
        const std::unique_ptr<AnyRecord> kept = record->fresh();
        RC_ASSERT(kept->parseByTheRules(record->textByTheRules({false, false})));
        requireEqual(parsed(compactTextOf(*record))->description(), kept->description());
    });
}

TEST_P(RoundTripOfAnyRecord, IsTheSameFromEveryFormOfTheText) {
    expectHolds([] {
        const SharedRecord record = anyRecord();
        const std::string fromCompact = parsed(compactTextOf(*record))->description();
        for (const PrintForm& form : everyPrintForm) {
            requireEqual(parsed(record->text(form))->description(), fromCompact);
        }
    });
}

}  // namespace
}  // namespace lv::test

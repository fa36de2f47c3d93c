#include <tests/properties/AnyRecordTest.h>
#include <tests/support/Changed.h>

// Copies of any record hold all of it and share nothing.

namespace lv::test {
namespace {

class CopyOfAnyRecord : public AnyRecordTest {
protected:
    static void changeEveryMember(AnyRecord& record) { Changed().visitAll(record.members()); }
};

INSTANTIATE_TEST_SUITE_P(Every, CopyOfAnyRecord, testing::ValuesIn(everyRecord()), nameOf);

TEST_P(CopyOfAnyRecord, CanBeChangedInEveryMemberWithoutTheOriginal) {
    expectHolds([] {
        const SharedRecord original = anyRecord();
        const std::string before = original->description();
        const std::unique_ptr<AnyRecord> copy = original->copy();
        requireEqual(copy->description(), before);
        changeEveryMember(*copy);
        requireAllLinesDiffer(copy->description(), before);
        requireEqual(original->description(), before);
    });
}

TEST_P(CopyOfAnyRecord, OutlivesAChangedAndDestroyedOriginal) {
    expectHolds([] {
        std::unique_ptr<AnyRecord> original = anyRecord()->copy();
        const std::string before = original->description();
        const std::unique_ptr<AnyRecord> copy = original->copy();
        const std::unique_ptr<AnyRecord> assigned = anyRecord()->copy();
        assigned->assign(*original);
        changeEveryMember(*original);
        original.reset();
        requireEqual(copy->description(), before);
        requireEqual(assigned->description(), before);
    });
}

}  // namespace
}  // namespace lv::test

#include <tests/analysis/catalogue.h>
#include <tests/properties/AnyRecordTest.h>
#include <tests/support/Changed.h>

#include <lvdata/analysis/diff/diff.h>

// Differences of any two records agree with their equality and with their documents.

namespace lv::test {
namespace {

class DiffOfAnyRecord : public AnyRecordTest {
protected:
    static bool differ(const std::string& before, const std::string& after) {
        const analysis::Tree first = analysis::Tree::ofPrinted(before);
        const analysis::Tree second = analysis::Tree::ofPrinted(after);
        const auto& entry = *catalogue().find(GetParam()->rootName());
        return !diffPrinted(first, second, entry).differences.empty();
    }

    /// The document of a record that was read from the one that this record prints: what reading drops is gone.
    static std::string settled(const AnyRecord& record) { return compactTextOf(*parsed(compactTextOf(record))); }

    /// A copy with one place changed.
    static std::unique_ptr<AnyRecord> withAChange(const AnyRecord& record) {
        std::unique_ptr<AnyRecord> copy = record.copy();
        Changed(*rc::gen::inRange<std::size_t>(0, 60)).visitAll(copy->members());
        return copy;
    }
};

INSTANTIATE_TEST_SUITE_P(Every, DiffOfAnyRecord, testing::ValuesIn(everyRecord()), nameOf);

TEST_P(DiffOfAnyRecord, IsEmptyExactlyWhenTheDocumentsAreTheSame) {
    expectHolds([] {
        const SharedRecord record = anyRecord();
        const std::string before = compactTextOf(*record);
        const std::string after = compactTextOf(*withAChange(*record));
        RC_ASSERT(differ(before, after) == (before != after));
        RC_ASSERT(!differ(before, before));
    });
}

TEST_P(DiffOfAnyRecord, IsEmptyExactlyWhenRecordsThatHoldOnlyWhatTheyPrintAreEqual) {
    expectHolds([] {
        const SharedRecord record = anyRecord(Texts::xml);
        const std::string before = settled(*record);
        const std::string after = settled(*withAChange(*record));
        RC_ASSERT(differ(before, after) == !parsed(before)->isEqualTo(*parsed(after)));
    });
}

}  // namespace
}  // namespace lv::test

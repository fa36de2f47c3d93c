#include <tests/properties/AnyRecordTest.h>
#include <tests/support/Changed.h>

#include <lvdata/analysis/diff.h>

// Differences of any two records agree with their equality and with their documents.

namespace lv::test {
namespace {

const analysis::Catalogue& catalogue() {
    static const analysis::Catalogue all;
    return all;
}

class DiffOfAnyRecord : public AnyRecordTest {
protected:
    static bool differ(const AnyRecord& before, const AnyRecord& after) {
        const analysis::Tree first = analysis::Tree::ofPrinted(compactTextOf(before));
        const analysis::Tree second = analysis::Tree::ofPrinted(compactTextOf(after));
        const auto& entry = *catalogue().find(GetParam()->rootName());
        return !diffPrinted(first, second, entry).differences.empty();
    }

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
        const SharedRecord before = anyRecord();
        const std::unique_ptr<AnyRecord> after = withAChange(*before);
        RC_ASSERT(differ(*before, *after) == (compactTextOf(*before) != compactTextOf(*after)));
        RC_ASSERT(!differ(*before, *before->copy()));
    });
}

TEST_P(DiffOfAnyRecord, IsEmptyExactlyWhenRecordsThatHoldOnlyWhatTheyPrintAreEqual) {
    expectHolds([] {
        const std::unique_ptr<AnyRecord> before = parsed(compactTextOf(*anyRecord(Texts::xml)));
        const std::unique_ptr<AnyRecord> after = parsed(compactTextOf(*withAChange(*before)));
        RC_ASSERT(differ(*before, *after) == !before->isEqualTo(*after));
    });
}

}  // namespace
}  // namespace lv::test

#include <tests/properties/AnyRecordTest.h>
#include <tests/properties/edits.h>

// What any document of a record does to any record.

namespace lv::test {
namespace {

class ParsingOfAnyDocument : public AnyRecordTest {
protected:
    /// What a record printed, and others had their hands on.
    [[nodiscard]] static std::string anyDocument() {
        const std::string text = compactTextOf(*anyRecord());
        constexpr int mostEdits = 20;
        return edited(text, *rc::gen::resize(mostEdits, rc::gen::arbitrary<std::vector<Edit>>()));
    }
};

INSTANTIATE_TEST_SUITE_P(Every, ParsingOfAnyDocument, testing::ValuesIn(everyRecord()), nameOf);

TEST_P(ParsingOfAnyDocument, FillsAnyRecordByTheRules) {
    expectHolds([] {
        const std::unique_ptr<AnyRecord> record = anyRecord()->copy();
        const std::string text = anyDocument();
        RC_LOG() << text << '\n';
        const std::unique_ptr<AnyRecord> expected = record->copy();
        RC_ASSERT(expected->parseByTheRules(text));
        RC_ASSERT(record->parse(text));
        requireEqual(record->description(), expected->description());
        RC_ASSERT(record->isEqualTo(*expected));
    });
}

TEST_P(ParsingOfAnyDocument, GivesTheSameInEveryFreshRecord) {
    expectHolds([] {
        const std::string text = anyDocument();
        RC_LOG() << text << '\n';
        requireEqual(parsed(text)->description(), parsed(text)->description());
    });
}

}  // namespace
}  // namespace lv::test

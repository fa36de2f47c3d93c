#include <fuzz/support/harness.h>
#include <fuzz/support/members.h>
#include <fuzz/support/picked_record.h>

// Two documents into one record, against fresh records that read the second alone. The documents stand on either side
// of the first NUL: where a document would end anyway.

namespace lv::fuzz {
namespace {

using test::describe;

/// What the second document holds is in the record as in the fresh one; what it lacks may be left over from the first.
void checkAgainstFresh(const Members& record, const Members& fresh) {
    for (const Member& expected : fresh.all()) {
        if (fresh.isInMissingRecord(expected)) {
            continue;  // a nested record that was not found keeps all that it held
        }
        const Member& actual = record.named(expected.name);
        if (isInRow(expected)) {
            checkEqual(actual.value, expected.value, "rows are those of a fresh parse: " + expected.name);
        } else if (expected.flag == Flag::set) {
            check(actual.flag == Flag::set, "what was found is set: " + expected.name);
            check(actual.value == expected.value || isString(expected), "and replaces the value: " + expected.name);
            check(actual.value == expected.value || expected.value == emptyString, "a text too: " + expected.name);
        } else if (expected.flag == Flag::unset && !followsFromValues(expected)) {
            check(actual.flag == Flag::unset, "what was not found is not set: " + expected.name);
        }
    }
}

template <class Record>
void checkSecondParse(Record& record, const Record& fresh, const std::string& second) {
    const std::string before = describe(record);
    Record expected = fresh;
    const bool accepted = record.parseXMLString(second);
    check(expected.parseXMLString(second) == accepted, "whether a document is accepted is up to the document alone");
    if (!accepted) {
        checkEqual(describe(record), before, "a refused document leaves the record as it was");
        return;
    }
    const std::string after = describe(record);
    checkAgainstFresh(Members(after), Members(describe(expected)));
    check(record.parseXMLString(second), "what was accepted is accepted again");
    checkEqual(describe(record), after, "the same document again changes nothing");
}

template <class Record>
void checkDocuments(Record& record, const std::string& documents) {
    const Record fresh = record;
    const std::size_t end = documents.find('\0');
    const std::string second = end == std::string::npos ? "" : documents.substr(end + 1);
    static_cast<void>(record.parseXMLString(documents.substr(0, end)));  // either way is a state to go on from
    checkSecondParse(record, fresh, second);
}

}  // namespace
}  // namespace lv::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) {
        const auto input = lv::fuzz::recordInput({data, data + size});
        lv::fuzz::withPickedRecord(input, [&input](auto& record) { lv::fuzz::checkDocuments(record, input.text); });
    }
    return 0;
}

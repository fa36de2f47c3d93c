#include <fuzz/support/harness.h>
#include <fuzz/support/members.h>
#include <fuzz/support/picked_record.h>

// Two documents into one record, against fresh records that read one of them each. The documents stand on either side
// of the first NUL: where a document would end anyway.

namespace lv::fuzz {
namespace {

using test::describe;

/// The members of a record that read both documents, and of fresh ones that read the first, the second, or none.
struct Readings {
    Members both;
    Members first;
    Members second;
    Members fresh;
};

bool isEither(const Member& actual, const Member& one, const Member& other) {
    return actual.value == one.value || actual.value == other.value;
}

/// A list is the second document's.
void checkRow(const Readings& readings, const Member& actual) {
    check(actual.text == readings.second.named(actual.name).text, "rows are those of a fresh parse: " + actual.name);
}

/// A nested record that was not found is as the first document left it.
void checkLeftRecord(const Readings& readings, const Member& actual) {
    check(actual.text == readings.first.named(actual.name).text, "a record not found stays: " + actual.name);
}

void checkFlag(const Readings& readings, const Member& actual) {
    const Flag expected = readings.second.named(actual.name).flag;
    const bool mayBeEarlier = followsFromValues(actual) && expected == Flag::unset;
    check(actual.flag == expected || mayBeEarlier, "a flag tells what was found: " + actual.name);
}

/// A value that differs from that of a fresh record was found for certain.
void checkFound(const Readings& readings, const Member& actual) {
    const Member& second = readings.second.named(actual.name);
    if (second.flag == Flag::set || tellsOfRecord(actual) || second.value != readings.fresh.named(actual.name).value) {
        const bool mayBeEarlier = second.value == emptyString;  // an element without text leaves a string as it was
        check(actual.value == second.value || mayBeEarlier, "what was found replaces the value: " + actual.name);
    }
}

/// What was not found stays. An array whose length does not count is found, but not set.
void checkLeft(const Readings& readings, const Member& actual) {
    const Member& first = readings.first.named(actual.name);
    const Member& second = readings.second.named(actual.name);
    const bool mayBeFound = second.value != readings.fresh.named(actual.name).value || isArray(actual);
    if (second.flag == Flag::unset && !mayBeFound && !followsFromValues(actual)) {
        check(actual.value == first.value, "what was not found stays: " + actual.name);
    }
    check(isEither(actual, first, second), "a value is from one of the documents: " + actual.name);
}

void checkMember(const Readings& readings, const Member& actual) {
    if (readings.second.isInMissingRecord(actual)) {
        checkLeftRecord(readings, actual);
    } else if (isInRow(actual) || isRowCount(actual)) {
        checkRow(readings, actual);
    } else {
        checkFlag(readings, actual);
        if (!isReadByLeftType(readings.both, readings.second, actual)) {
            checkFound(readings, actual);
            checkLeft(readings, actual);
        }
    }
}

void checkMembers(const Readings& readings) {
    for (const Member& actual : readings.both.all()) {
        checkMember(readings, actual);
    }
}

struct Documents {
    std::string first;
    std::string second;
};

Documents documentsIn(const std::string& text) {
    const std::size_t end = text.find('\0');
    return {text.substr(0, end), end == std::string::npos ? "" : text.substr(end + 1)};
}

/// \param record  has read the first document
template <class Record>
void checkSecondParse(Record& record, const Record& fresh, const std::string& second) {
    const std::string first = describe(record);
    Record expected = fresh;
    const bool accepted = record.parseXMLString(second);
    check(expected.parseXMLString(second) == accepted, "whether a document is accepted is up to the document alone");
    if (!accepted) {
        checkEqual(describe(record), first, "a refused document leaves the record as it was");
        return;
    }
    const std::string both = describe(record);
    checkMembers({Members(both), Members(first), Members(describe(expected)), Members(describe(fresh))});
    check(record.parseXMLString(second), "what was accepted is accepted again");
    checkEqual(describe(record), both, "the same document again changes nothing");
}

template <class Record>
void checkDocuments(Record& record, const Documents& documents) {
    const Record fresh = record;
    static_cast<void>(record.parseXMLString(documents.first));  // either way is a state to go on from
    checkSecondParse(record, fresh, documents.second);
}

}  // namespace
}  // namespace lv::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) {
        const auto input = lv::fuzz::recordInput(lv::fuzz::textOf(data, size));
        const auto documents = lv::fuzz::documentsIn(input.text);
        lv::fuzz::withPickedRecord(input, [&documents](auto& record) { lv::fuzz::checkDocuments(record, documents); });
    }
    return 0;
}

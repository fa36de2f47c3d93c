#pragma once

#include <tests/support/member_lists.h>
#include <tests/support/model/traits.h>
#include <tests/support/round_trip.h>

#include <memory>
#include <string>

namespace lv::test {

// What reading and printing are to do with a record of any class, by the rules of the format and by what the library
// says of itself in the record's description. The rules share no code with the library.

/// The record's members with what the description says of each. Throws when they do not belong together.
template <class Record>
[[nodiscard]] std::unique_ptr<Node> boundTo(Record& record) {
    static const lv::Description description = Record::describe();
    return boundRoot(description, MemberList::listOf(record));
}

/// What is worth knowing of the members of the class.
template <class Record>
[[nodiscard]] const TraitsByPath& traitsOf() {
    static const TraitsByPath traits = [] {
        Record record;
        return traitsOf(*boundTo(record));
    }();
    return traits;
}

[[nodiscard]] bool readText(Node& root, const std::string& text);
[[nodiscard]] std::string writtenText(const Node& root, bool hlgSwitch, const PrintForm& form);

/// What `parseXMLString` is to do.
template <class Record>
[[nodiscard]] bool readByTheRules(Record& record, const std::string& text) {
    return readText(*boundTo(record), text);
}

/// What `toXMLString` is to give.
template <class Record>
[[nodiscard]] std::string writtenByTheRules(Record record, const PrintForm& form) {
    return writtenText(*boundTo(record), record.writeHLGSystemGamma, form);
}

/// What is left of the record when it was printed and parsed into a fresh one.
template <class Record>
[[nodiscard]] Record readBackByTheRules(const Record& record) {
    Record copy;
    static_cast<void>(readByTheRules(copy, writtenByTheRules(record, {false, false})));
    return copy;
}

}  // namespace lv::test

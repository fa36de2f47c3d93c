#pragma once

#include <tests/support/describe.h>
#include <tests/support/model/filling.h>
#include <tests/support/model/model.h>

#include <string>
#include <type_traits>

namespace lv::test {

/// A record, or a value that records hold, whose every member has a value of its own and none its default. Of a record
/// as much as possible is written: the texts that decide it are those of the description.
template <class T>
[[nodiscard]] T filled() {
    static const T sample = [] {
        T value;
        if constexpr (std::is_base_of_v<DataObject, T>) {
            fill(MemberList::listOf(value), traitsOf<T>());
            steer(*boundTo(value));
        } else {
            fill(MemberList::listOf(value));
        }
        return value;
    }();
    return sample;
}

/// What is left of `filled` when it was printed and parsed into a fresh record.
template <class Record>
[[nodiscard]] Record filledAndParsedBack() {
    return readBackByTheRules(filled<Record>());
}

/// How `filled` looks when it has read a root element without attributes and children.
template <class Record>
[[nodiscard]] std::string filledAfterEmptyRoot() {
    Record record = filled<Record>();
    static_cast<void>(readByTheRules(record, documentOf<Record>("")));
    return describe(record);
}

/// The value with the flags of its own members clear, not those of what they hold.
template <class T>
[[nodiscard]] T withClearFlags(T value) {
    for (const Member& member : MemberList::listOf(value)) {
        if (member.flag != nullptr) {
            *member.flag = false;
        }
    }
    return value;
}

}  // namespace lv::test

#pragma once

#include <fuzz/support/harness.h>
#include <tests/support/describe.h>
#include <tests/support/model/model.h>

#include <string>

namespace lv::fuzz {

/// That two records are equal in all members, and that the library says so.
template <class Record>
void checkSame(const Record& actual, const Record& expected, const std::string& promise) {
    checkEqual(test::describe(actual), test::describe(expected), promise);
    check(actual == expected, promise + ", and is found equal");
}

/// That the record reads the text as the rules of the format say, in whatever state it is. Answers whether the text was
/// accepted.
template <class Record>
bool checkReading(Record& record, const std::string& text) {
    Record expected = record;
    const bool isAccepted = record.parseXMLString(text);
    check(test::readByTheRules(expected, text) == isAccepted, "a text is accepted when the rules say so");
    checkSame(record, expected, "what was read, or refused, is what the rules say");
    return isAccepted;
}

}  // namespace lv::fuzz

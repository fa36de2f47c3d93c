#pragma once

#include <tests/support/describe.h>

#include <string>

#include <gtest/gtest.h>

namespace lv::test {

/// The record refuses the text, and every member stays as it was.
template <class Record>
void expectRefusedUnchanged(Record record, const std::string& text) {
    const std::string shown = text.substr(0, 1000);
    const std::string before = describe(record);
    EXPECT_FALSE(record.parseXMLString(text)) << shown;
    EXPECT_EQ(describe(record), before) << shown;
}

}  // namespace lv::test

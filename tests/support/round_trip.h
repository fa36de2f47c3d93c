#pragma once

#include <gtest/gtest.h>

#include <lvdata/core/DataObject.h>

#include <array>
#include <string>

namespace lv::test {

/// How a document can be printed.
struct PrintForm {
    bool declaration;
    bool pretty;
};

inline constexpr std::array everyPrintForm = {PrintForm{false, false}, PrintForm{false, true}, PrintForm{true, false},
                                              PrintForm{true, true}};

/// The record's document on one line, without a declaration.
[[nodiscard]] inline std::string compact(const DataObject& record) {
    return record.toXMLString(false, false);
}

/// A fresh record that has read this document; a refusal fails the test.
template <class Record>
[[nodiscard]] Record parsed(const std::string& text) {
    Record record;
    EXPECT_TRUE(record.parseXMLString(text)) << text;
    return record;
}

/// A document of the record with these children, and without version attributes.
template <class Record>
[[nodiscard]] std::string documentOf(const std::string& children) {
    const std::string name = Record::rootElementName;
    return '<' + name + '>' + children + "</" + name + '>';
}

/// What a record that holds only these children prints: its document with the version of its class.
template <class Record>
[[nodiscard]] std::string written(const std::string& children) {
    const std::string name = Record::rootElementName;
    const Record fresh;
    return '<' + name + " Version=\"" + std::to_string(fresh.version.value) + "\" MinorVersion=\"" +
           std::to_string(fresh.minorVersion.value) + "\">" + children + "</" + name + '>';
}

/// The record after it has read a document with these children and no version; a refusal fails the test.
template <class Record>
[[nodiscard]] Record afterReading(Record record, const std::string& children) {
    EXPECT_TRUE(record.parseXMLString(documentOf<Record>(children))) << children;
    return record;
}

/// A fresh record that has read these children.
template <class Record>
[[nodiscard]] Record parsedFrom(const std::string& children) {
    return afterReading(Record(), children);
}

}  // namespace lv::test

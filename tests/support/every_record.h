#pragma once

#include <tests/support/documents.h>
#include <tests/support/round_trip.h>
#include <tests/support/samples.h>

#include <gtest/gtest.h>

#include <lvdata/records/EveryRecord.h>

#include <string>

namespace lv::test {

template <class... Records>
::testing::Types<Records...> typesOf(RecordTypes<Records...> /*list*/);

/// What the tests run for that must hold for every record.
using EveryRecord = decltype(typesOf(lv::EveryRecord()));

/// Names the tests after their record.
struct RecordName {
    template <class Record>
    static std::string GetName(int /*index*/) {
        return Record::rootElementName;
    }
};

template <class Record>
class EveryRecordTest : public ::testing::Test {
protected:
    static std::string rootName() { return Record::rootElementName; }

    /// A document with all elements and other values than `filled` has.
    static std::string otherDocument() { return withOtherTexts(compact(filled<Record>())); }
};

}  // namespace lv::test

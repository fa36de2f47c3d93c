#pragma once

#include <tests/analysis/catalogue.h>

#include <lvdata/core/DataObject.h>
#include <lvdata/records/EveryRecord.h>

#include <string>
#include <typeinfo>

#include <gtest/gtest.h>

// Records whose class is known only at run time.

namespace lv::test {

template <class Record>
bool areEqualAs(const DataObject& left, const DataObject& right) {
    return typeid(left) == typeid(Record) && dynamic_cast<const Record&>(left) == dynamic_cast<const Record&>(right);
}

template <class... Records>
bool areEqualAsAny(const DataObject& left, const DataObject& right, RecordTypes<Records...> /*list*/) {
    return typeid(left) == typeid(right) && (areEqualAs<Records>(left, right) || ...);
}

/// Whether they are of the same class, and all members are equal.
inline bool areEqual(const DataObject& left, const DataObject& right) {
    return areEqualAsAny(left, right, lv::EveryRecord());
}

}  // namespace lv::test

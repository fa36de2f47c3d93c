#pragma once

#include <tests/support/Description.h>

#include <lvdata/core/DataObject.h>
#include <lvdata/core/colour.h>
#include <lvdata/records/AssetInfo.h>
#include <lvdata/records/CorrelationInfo.h>
#include <lvdata/records/MeasurementData.h>
#include <lvdata/records/MonitorParameter.h>

#include <string>

namespace lv::test {

/// The members of every record and of every value that records hold, listed by hand: what the library forgets to read
/// or to write, these do not. A new record adds its lines here and defines them in a file of its own name.
void describe(Description& out, const AssetInfo& record);
void describe(Description& out, const CorrelationInfo& record);
void describe(Description& out, const MeasurementData& record);
void describe(Description& out, const MeasurementDataObject& row);
void describe(Description& out, const MonitorParameter& record);
void describe(Description& out, const MonitorParameter::six_colors_t& colours);
void describe(Description& out, const colour& value);

/// What all records have; the first call of every record's own function.
void describeBase(Description& out, const DataObject& record);

/// Two values are equal in every member exactly when these texts are; their difference tells which member it is.
template <class T>
[[nodiscard]] std::string describe(const T& value) {
    Description out;
    describe(out, value);
    return out.text();
}

}  // namespace lv::test

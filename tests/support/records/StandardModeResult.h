#pragma once

#include <tests/support/Member.h>
#include <tests/support/records/BasicData.h>
#include <tests/support/records/MeasurementDataSecondary.h>

#include <lvdata/records/StandardModeResult.h>

namespace lv::test {

inline void members(MemberList& list, StandardModeResult& record) {
    list.addBase(record);
    list.add("measurementData", record.measurementData);
    list.addFlag("hasMeasurementData", record.hasMeasurementData, Member::Role::flagOfPrevious);
    list.add("measurementDataSecondary", record.measurementDataSecondary);
    list.addFlag("hasMeasurementDataSecondary", record.hasMeasurementDataSecondary, Member::Role::flagOfPrevious);
    list.add("maxWhite", record.maxWhite);
    list.add("basicData", record.basicData);
    list.addFlag("hasBasicData", record.hasBasicData, Member::Role::flagOfPrevious);
}

}  // namespace lv::test

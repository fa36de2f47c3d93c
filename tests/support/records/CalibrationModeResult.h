#pragma once

#include <tests/support/Member.h>
#include <tests/support/records/BasicData.h>
#include <tests/support/records/MeasurementData.h>
#include <tests/support/records/MonitorParameter.h>
#include <tests/support/records/ProfileData.h>

#include <lvdata/records/CalibrationModeResult.h>

namespace lv::test {

inline void members(MemberList& list, CalibrationModeResultObject::EmulationLUT& table) {
    list.add("availability", table.availability);
    list.add("index", table.index);
    list.add("name", table.name);
    list.addFlag("present", table.present, Member::Role::flagOfAll);
}

inline void members(MemberList& list, CalibrationModeResultObject& row) {
    list.add("type", row.type);
    list.add("index", row.index);
    list.add("name", row.name);
    list.add("calibratedTime", row.calibratedTime);
    list.add("basicData", row.basicData);
    list.addFlag("hasBasicData", row.hasBasicData, Member::Role::flagOfPrevious);
    list.add("measurementData", row.measurementData);
    list.addFlag("hasMeasurementData", row.hasMeasurementData, Member::Role::flagOfPrevious);
    list.add("hasValidMeasuredBlackValue", row.hasValidMeasuredBlackValue);
    list.add("monitorParameter", row.monitorParameter);
    list.addFlag("hasMonitorParameter", row.hasMonitorParameter, Member::Role::flagOfPrevious);
    list.add("profileData", row.profileData);
    list.addFlag("hasProfileData", row.hasProfileData, Member::Role::flagOfPrevious);
    list.add("emulationLUT", row.emulationLUT);
}

inline void members(MemberList& list, CalibrationModeResult& record) {
    list.addBase(record);
    list.addRows(record);
}

}  // namespace lv::test

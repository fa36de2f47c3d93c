#pragma once

#include <tests/support/Member.h>
#include <tests/support/records/ColorModeSettings.h>
#include <tests/support/records/SelfCalibrationSchedule.h>

#include <lvdata/records/MonitorConfiguration.h>

namespace lv::test {

inline void members(MemberList& list, MonitorConfiguration& record) {
    list.addBase(record);
    list.add("name", record.name);
    list.add("model", record.model);
    list.add("serial", record.serial);
    list.add("colorModeSettings", record.colorModeSettings);
    list.add("selfCalibrationSchedule", record.selfCalibrationSchedule);
    list.add("standardModeCalibration", record.standardModeCalibration);
    list.add("keyLock", record.keyLock);
}

}  // namespace lv::test

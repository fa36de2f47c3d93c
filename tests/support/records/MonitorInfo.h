#pragma once

#include <tests/support/Member.h>
#include <tests/support/records/AssetInfo.h>
#include <tests/support/records/CalibrationModeResult.h>
#include <tests/support/records/CandelaMap.h>
#include <tests/support/records/CorrelationInfo.h>
#include <tests/support/records/MonitorConfiguration.h>
#include <tests/support/records/StandardModeResult.h>

#include <lvdata/records/MonitorInfo.h>

namespace lv::test {

inline void members(MemberList& list, MonitorInfo& record) {
    list.addBase(record);
    list.add("uuid", record.uuid);
    list.add("monitorConfiguration", record.monitorConfiguration);
    list.add("calibrationModeResult", record.calibrationModeResult);
    list.add("standardModeResult", record.standardModeResult);
    list.add("assetInfo", record.assetInfo);
    list.add("correlationInfo", record.correlationInfo);
    list.add("candelaMap", record.candelaMap);
}

}  // namespace lv::test

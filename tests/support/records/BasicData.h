#pragma once

#include <tests/support/Member.h>

#include <lvdata/records/BasicData.h>

namespace lv::test {

inline void members(MemberList& list, BasicData& record) {
    list.addBase(record);
    list.add("usageHours", record.usageHours);
    list.add("usageMinutes", record.usageMinutes);
    list.add("colorSensorID", record.colorSensorID);
    list.add("colorSensorName", record.colorSensorName);
    list.add("colorSensorSerial", record.colorSensorSerial);
    list.add("colorSensorCorrection", record.colorSensorCorrection);
    list.add("referenceColorSensorID", record.referenceColorSensorID);
    list.add("referenceColorSensorName", record.referenceColorSensorName);
    list.add("referenceColorSensorSerial", record.referenceColorSensorSerial);
    list.add("colorSensorCorrelationID", record.colorSensorCorrelationID);
    list.add("colorSensorCorrelationDate", record.colorSensorCorrelationDate);
    list.add("colorSensorCorrelationMatrixID", record.colorSensorCorrelationMatrixID);
    list.add("useColorSensorCorrelationMatrix", record.useColorSensorCorrelationMatrix);
    list.add("correlationTargetWhite", record.correlationTargetWhite);
    list.add("justCalibratedWhite", record.justCalibratedWhite);
    list.add("exCorrectionID", record.exCorrectionID);
    list.add("exCorrectionName", record.exCorrectionName);
    list.add("backLightLightingTime", record.backLightLightingTime);
    list.add("software", record.software);
    list.add("executedDate", record.executedDate);
    list.add("DUEPriority", record.DUEPriority);
    list.add("executorType", record.executorType);
}

}  // namespace lv::test

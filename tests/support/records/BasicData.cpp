#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const BasicData& record) {
    describeBase(out, record);
    out.member("usageHours", record.usageHours);
    out.member("usageMinutes", record.usageMinutes);
    out.member("colorSensorID", record.colorSensorID);
    out.member("colorSensorName", record.colorSensorName);
    out.member("colorSensorSerial", record.colorSensorSerial);
    out.member("colorSensorCorrection", record.colorSensorCorrection);
    out.member("referenceColorSensorID", record.referenceColorSensorID);
    out.member("referenceColorSensorName", record.referenceColorSensorName);
    out.member("referenceColorSensorSerial", record.referenceColorSensorSerial);
    out.member("colorSensorCorrelationID", record.colorSensorCorrelationID);
    out.member("colorSensorCorrelationDate", record.colorSensorCorrelationDate);
    out.member("colorSensorCorrelationMatrixID", record.colorSensorCorrelationMatrixID);
    out.member("useColorSensorCorrelationMatrix", record.useColorSensorCorrelationMatrix);
    out.member("correlationTargetWhite", record.correlationTargetWhite);
    out.member("justCalibratedWhite", record.justCalibratedWhite);
    out.member("exCorrectionID", record.exCorrectionID);
    out.member("exCorrectionName", record.exCorrectionName);
    out.member("backLightLightingTime", record.backLightLightingTime);
    out.member("software", record.software);
    out.member("executedDate", record.executedDate);
    out.member("DUEPriority", record.DUEPriority);
    out.member("executorType", record.executorType);
}

template <>
BasicData filled<BasicData>() {
    BasicData record;
    fillBase(record);
    record.usageHours.set(1234);
    record.usageMinutes.set(56);
    record.colorSensorID.set(3);
    record.colorSensorName.set("Sensor 4");
    record.colorSensorSerial.set("SN-0005");
    record.colorSensorCorrection.set(6);
    record.referenceColorSensorID.set(7);
    record.referenceColorSensorName.set("Reference 8");
    record.referenceColorSensorSerial.set("SN-0009");
    record.colorSensorCorrelationID.set(10);
    record.colorSensorCorrelationDate.set("2024-03-11");
    record.colorSensorCorrelationMatrixID.set(12);
    record.useColorSensorCorrelationMatrix.set("true 13");
    record.correlationTargetWhite.set({95047000, 100000000, 108883000});
    record.justCalibratedWhite.set({95100000, 100200000, 108700000});
    record.exCorrectionID.set(16);
    record.exCorrectionName.set("Correction 17");
    record.backLightLightingTime.set(18);
    record.software.set("Calibrator 1.9");
    record.executedDate.set("2024-03-20");
    record.DUEPriority.set(21);
    record.executorType.set("Operator 22");
    return record;
}

/// The flag of the executor's type follows the text, which stays.
template <>
std::string filledAfterEmptyRoot<BasicData>() {
    return withClearFlags(describe(filled<BasicData>()), {"executorType"});
}

}  // namespace lv::test

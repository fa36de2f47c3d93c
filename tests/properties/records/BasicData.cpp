#include <tests/properties/records.h>

namespace lv::test {

void members(Members& visit, BasicData& record) {
    membersOfBase(visit, record);
    visit.all(record.usageHours, record.usageMinutes);
    visit.all(record.colorSensorID, record.colorSensorName, record.colorSensorSerial, record.colorSensorCorrection);
    visit.all(record.referenceColorSensorID, record.referenceColorSensorName, record.referenceColorSensorSerial);
    visit.all(record.colorSensorCorrelationID, record.colorSensorCorrelationDate, record.colorSensorCorrelationMatrixID,
              record.useColorSensorCorrelationMatrix);
    visit(record.correlationTargetWhite, likelyLengths({3}));
    visit(record.justCalibratedWhite, likelyLengths({3}));
    visit.all(record.exCorrectionID, record.exCorrectionName, record.backLightLightingTime);
    visit.all(record.software, record.executedDate, record.DUEPriority, record.executorType);
}

void lose(BasicData& record, bool /*hlgSwitch*/) {
    for (auto* white : {&record.correlationTargetWhite, &record.justCalibratedWhite}) {
        white->hasValue = white->value.size() == 3;  // three entries are written whatever the flag, others never
    }
    loseInGeneral(record);
    record.executorType.hasValue = !record.executorType.value.empty();
}

void read(const Found& element, BasicData& record) {
    element("UsageHours", record.usageHours);
    element("UsageMinutes", record.usageMinutes);
    element("ColorSensorID", record.colorSensorID);
    element("ColorSensorName", record.colorSensorName);
    element("ColorSensorSerial", record.colorSensorSerial);
    element("ColorSensorCorrection", record.colorSensorCorrection);
    element("ReferenceColorSensorID", record.referenceColorSensorID);
    element("ReferenceColorSensorName", record.referenceColorSensorName);
    element("ReferenceColorSensorSerial", record.referenceColorSensorSerial);
    element("ColorSensorCorrelationID", record.colorSensorCorrelationID);
    element("ColorSensorCorrelationDate", record.colorSensorCorrelationDate);
    element("ColorSensorCorrelationMatrixID", record.colorSensorCorrelationMatrixID);
    element("UseColorSensorCorrelationMatrix", record.useColorSensorCorrelationMatrix);
    element("CorrelationTargetWhite", record.correlationTargetWhite);
    element("JustCalibratedWhite", record.justCalibratedWhite);
    element("ExCorrectionID", record.exCorrectionID);
    element("ExCorrectionName", record.exCorrectionName);
    element("BackLightLightingTime", record.backLightLightingTime);
    element("Software", record.software);
    element("executedDate", record.executedDate);
    element("DUEPriority", record.DUEPriority);
    element.child("Executor")("Type", record.executorType.value);
    record.executorType.hasValue = !record.executorType.value.empty();
}

}  // namespace lv::test

#include <tests/properties/records.h>

namespace lv::test {

void members(Members& visit, MonitorConfiguration& record) {
    membersOfBase(visit, record);
    visit.all(record.name, record.model, record.serial);
    visit.all(record.colorModeSettings, record.selfCalibrationSchedule);
    visit.all(record.standardModeCalibration, record.keyLock);
}

void lose(MonitorConfiguration& record, bool hlgSwitch) {
    loseWrittenAlways(record.colorModeSettings, hlgSwitch);
    loseWrittenAlways(record.selfCalibrationSchedule, hlgSwitch);
    loseInGeneral(record);
}

void read(const Found& element, MonitorConfiguration& record) {
    element("Name", record.name);
    element("Model", record.model);
    element("Serial", record.serial);
    element.record(record.colorModeSettings);
    element.record(record.selfCalibrationSchedule);
    element("StandardModeCalibration", record.standardModeCalibration);
    element("KeyLock", record.keyLock);
}

}  // namespace lv::test

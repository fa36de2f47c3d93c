#include <tests/properties/records.h>

namespace lv::test {

void members(Members& visit, MonitorInfo& record) {
    membersOfBase(visit, record);
    visit.all(record.uuid, record.monitorConfiguration, record.calibrationModeResult, record.standardModeResult);
    visit.all(record.assetInfo, record.correlationInfo, record.candelaMap);
}

void lose(MonitorInfo& record, bool hlgSwitch) {
    loseWrittenAlways(record.monitorConfiguration, hlgSwitch);
    loseWrittenAlways(record.calibrationModeResult, hlgSwitch);
    loseWrittenAlways(record.standardModeResult, hlgSwitch);
    loseWrittenAlways(record.assetInfo, hlgSwitch);
    loseWrittenAlways(record.correlationInfo, hlgSwitch);
    loseNested(record.candelaMap, hlgSwitch);
    loseInGeneral(record);
}

void read(const Found& element, MonitorInfo& record) {
    element("UUID", record.uuid);
    element.record(record.monitorConfiguration);
    element.record(record.calibrationModeResult);
    element.record(record.standardModeResult);
    element.record(record.assetInfo);
    element.record(record.correlationInfo);
    element.record(record.candelaMap);
}

}  // namespace lv::test

#include <tests/properties/records.h>

namespace lv::test {

void members(Members& visit, StandardModeResult& record) {
    membersOfBase(visit, record);
    visit.all(record.measurementData, record.hasMeasurementData);
    visit.all(record.measurementDataSecondary, record.hasMeasurementDataSecondary);
    visit(record.maxWhite);
    visit.all(record.basicData, record.hasBasicData);
}

void lose(StandardModeResult& record, bool hlgSwitch) {
    loseNested(record.measurementData, record.hasMeasurementData, hlgSwitch);
    loseNested(record.measurementDataSecondary, record.hasMeasurementDataSecondary, hlgSwitch);
    loseNested(record.basicData, record.hasBasicData, hlgSwitch);
    loseInGeneral(record);
}

void read(const Found& element, StandardModeResult& record) {
    record.hasMeasurementData = element.record(record.measurementData);
    record.hasMeasurementDataSecondary = element.record(record.measurementDataSecondary);
    element("MaxWhite", record.maxWhite);
    record.hasBasicData = element.record(record.basicData);
}

}  // namespace lv::test

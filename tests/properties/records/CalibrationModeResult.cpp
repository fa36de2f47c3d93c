#include <tests/properties/records.h>

namespace lv::test {
namespace {

using Row = CalibrationModeResultObject;

void loseInRow(Row& row, bool hlgSwitch) {
    row.type.hasValue = true;  // the attribute is written whatever the flag
    loseNested(row.basicData, row.hasBasicData, hlgSwitch);
    loseNested(row.measurementData, row.hasMeasurementData, hlgSwitch);
    loseNested(row.monitorParameter, row.hasMonitorParameter, hlgSwitch);
    row.hasProfileData = true;  // written always
    lose(row.profileData, hlgSwitch);
    keepWhen(row.emulationLUT.present, row.emulationLUT);
}

Row readRow(const Found& element) {
    Row row;
    element.attribute("Type", row.type);
    element("Index", row.index);
    element("Name", row.name);
    element("CalibratedTime", row.calibratedTime);
    row.hasBasicData = element.record(row.basicData);
    row.hasMeasurementData = element.record(row.measurementData);
    element("HasValidMeasuredBlackValue", row.hasValidMeasuredBlackValue);
    row.hasMonitorParameter = element.record(row.monitorParameter);
    row.hasProfileData = element.record(row.profileData);
    const Found table = element.child("EmulationLUT");
    row.emulationLUT.present = table.exists();
    table("Availability", row.emulationLUT.availability);
    table("Index", row.emulationLUT.index);
    table("Name", row.emulationLUT.name);
    return row;
}

}  // namespace

void members(Members& visit, Row::EmulationLUT& table) {
    visit.all(table.availability, table.index, table.name, table.present);
}

void members(Members& visit, Row& row) {
    visit(row.type, attribute({"Standard", "Calibration"}));
    visit.all(row.index, row.name, row.calibratedTime);
    visit.all(row.basicData, row.hasBasicData);
    visit.all(row.measurementData, row.hasMeasurementData);
    visit(row.hasValidMeasuredBlackValue);
    visit.all(row.monitorParameter, row.hasMonitorParameter);
    visit.all(row.profileData, row.hasProfileData);
    visit(row.emulationLUT);
}

void members(Members& visit, CalibrationModeResult& record) {
    membersOfBase(visit, record);
    visit(record.parsed);
    visit.rows(record.objects);
}

void lose(CalibrationModeResult& record, bool hlgSwitch) {
    for (Row& row : record.objects) {
        loseInRow(row, hlgSwitch);
    }
    record.parsed = true;
    loseInGeneral(record);
}

void read(const Found& element, CalibrationModeResult& record) {
    record.objects.clear();
    record.parsed = true;
    for (const Found& row : element.children("ColorMode")) {
        record.objects.push_back(readRow(row));
    }
}

}  // namespace lv::test

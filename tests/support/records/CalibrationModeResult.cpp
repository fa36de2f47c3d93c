#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const CalibrationModeResultObject::EmulationLUT& table) {
    out.member("availability", table.availability);
    out.member("index", table.index);
    out.member("name", table.name);
    out.member("present", table.present);
}

void describe(Description& out, const CalibrationModeResultObject& row) {
    out.member("type", row.type);
    out.member("index", row.index);
    out.member("name", row.name);
    out.member("calibratedTime", row.calibratedTime);
    out.member("basicData", row.basicData);
    out.member("hasBasicData", row.hasBasicData);
    out.member("measurementData", row.measurementData);
    out.member("hasMeasurementData", row.hasMeasurementData);
    out.member("hasValidMeasuredBlackValue", row.hasValidMeasuredBlackValue);
    out.member("monitorParameter", row.monitorParameter);
    out.member("hasMonitorParameter", row.hasMonitorParameter);
    out.member("profileData", row.profileData);
    out.member("hasProfileData", row.hasProfileData);
    out.member("emulationLUT", row.emulationLUT);
}

void describe(Description& out, const CalibrationModeResult& record) {
    describeBase(out, record);
    out.rows("objects", record.objects);
    out.member("parsed", record.parsed);
}

template <>
CalibrationModeResultObject filled<CalibrationModeResultObject>() {
    CalibrationModeResultObject row;
    row.type.set("Standard");
    row.index.set(1);
    row.name.set("Mode 1");
    row.calibratedTime.set("2024-07-01");
    row.basicData = filled<BasicData>();
    row.hasBasicData = true;
    row.measurementData = filled<MeasurementData>();
    row.hasMeasurementData = true;
    row.hasValidMeasuredBlackValue.set(true);
    row.monitorParameter = filled<MonitorParameter>();
    row.hasMonitorParameter = true;
    row.profileData = filled<ProfileData>();
    row.hasProfileData = true;
    row.emulationLUT = {2, 3, "Table 4", true};
    return row;
}

template <>
CalibrationModeResultObject filledAndParsedBack<CalibrationModeResultObject>() {
    auto row = filled<CalibrationModeResultObject>();
    row.basicData = filledAndParsedBack<BasicData>();
    row.measurementData = filledAndParsedBack<MeasurementData>();
    row.monitorParameter = filledAndParsedBack<MonitorParameter>();
    row.profileData = filledAndParsedBack<ProfileData>();
    return row;
}

namespace {

/// Two rows from one: the second differs in what is its own.
CalibrationModeResult twoRows(const CalibrationModeResultObject& first) {
    CalibrationModeResult record;
    fillBase(record);
    record.parsed = true;
    CalibrationModeResultObject second = first;
    second.type.set("User");
    second.index.set(2);
    second.name.set("Mode 2");
    second.basicData.usageHours.set(2222);
    second.emulationLUT = {5, 6, "Table 7", true};
    record.objects = {first, second};
    return record;
}

}  // namespace

template <>
CalibrationModeResult filled<CalibrationModeResult>() {
    return twoRows(filled<CalibrationModeResultObject>());
}

template <>
CalibrationModeResult filledAndParsedBack<CalibrationModeResult>() {
    CalibrationModeResult record = twoRows(filledAndParsedBack<CalibrationModeResultObject>());
    record.writeHLGSystemGamma = false;
    return record;
}

}  // namespace lv::test

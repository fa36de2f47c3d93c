#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const MonitorConfiguration& record) {
    describeBase(out, record);
    out.member("name", record.name);
    out.member("model", record.model);
    out.member("serial", record.serial);
    out.member("colorModeSettings", record.colorModeSettings);
    out.member("selfCalibrationSchedule", record.selfCalibrationSchedule);
    out.member("standardModeCalibration", record.standardModeCalibration);
    out.member("keyLock", record.keyLock);
}

template <>
MonitorConfiguration filled<MonitorConfiguration>() {
    MonitorConfiguration record;
    fillBase(record);
    record.name.set("Left monitor");
    record.model.set("Model 27");
    record.serial.set("SN-004711");
    record.colorModeSettings.set(filled<ColorModeSettings>());
    record.selfCalibrationSchedule.set(filled<SelfCalibrationSchedule>());
    record.standardModeCalibration.set(71);
    record.keyLock.set(72);
    return record;
}

template <>
MonitorConfiguration filledAndParsedBack<MonitorConfiguration>() {
    auto record = filled<MonitorConfiguration>();
    record.writeHLGSystemGamma = false;
    record.colorModeSettings.set(filledAndParsedBack<ColorModeSettings>());
    record.selfCalibrationSchedule.set(filledAndParsedBack<SelfCalibrationSchedule>());
    return record;
}

}  // namespace lv::test

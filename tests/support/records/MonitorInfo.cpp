#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const MonitorInfo& record) {
    describeBase(out, record);
    out.member("uuid", record.uuid);
    out.member("monitorConfiguration", record.monitorConfiguration);
    out.member("calibrationModeResult", record.calibrationModeResult);
    out.member("standardModeResult", record.standardModeResult);
    out.member("assetInfo", record.assetInfo);
    out.member("correlationInfo", record.correlationInfo);
    out.member("candelaMap", record.candelaMap);
}

template <>
MonitorInfo filled<MonitorInfo>() {
    MonitorInfo record;
    fillBase(record);
    record.uuid.set("8f14e45f-ceea-467f-a9c3-0d1e2f3a4b5c");
    record.monitorConfiguration.set(filled<MonitorConfiguration>());
    record.calibrationModeResult.set(filled<CalibrationModeResult>());
    record.standardModeResult.set(filled<StandardModeResult>());
    record.assetInfo.set(filled<AssetInfo>());
    record.correlationInfo.set(filled<CorrelationInfo>());
    record.candelaMap.set(filled<CandelaMap>());
    return record;
}

template <>
MonitorInfo filledAndParsedBack<MonitorInfo>() {
    auto record = filled<MonitorInfo>();
    record.writeHLGSystemGamma = false;
    record.monitorConfiguration.set(filledAndParsedBack<MonitorConfiguration>());
    record.calibrationModeResult.set(filledAndParsedBack<CalibrationModeResult>());
    record.standardModeResult.set(filledAndParsedBack<StandardModeResult>());
    record.assetInfo.set(filledAndParsedBack<AssetInfo>());
    record.correlationInfo.set(filledAndParsedBack<CorrelationInfo>());
    record.candelaMap.set(filledAndParsedBack<CandelaMap>());
    return record;
}

}  // namespace lv::test

#include <tests/support/samples.h>

namespace lv::test {

void describe(Description& out, const StandardModeResult& record) {
    describeBase(out, record);
    out.member("measurementData", record.measurementData);
    out.member("hasMeasurementData", record.hasMeasurementData);
    out.member("measurementDataSecondary", record.measurementDataSecondary);
    out.member("hasMeasurementDataSecondary", record.hasMeasurementDataSecondary);
    out.member("maxWhite", record.maxWhite);
    out.member("basicData", record.basicData);
    out.member("hasBasicData", record.hasBasicData);
}

template <>
StandardModeResult filled<StandardModeResult>() {
    StandardModeResult record;
    fillBase(record);
    record.measurementData = filled<MeasurementData>();
    record.hasMeasurementData = true;
    record.measurementDataSecondary = filled<MeasurementDataSecondary>();
    record.hasMeasurementDataSecondary = true;
    record.maxWhite.set(350);
    record.basicData = filled<BasicData>();
    record.hasBasicData = true;
    return record;
}

template <>
StandardModeResult filledAndParsedBack<StandardModeResult>() {
    StandardModeResult record = filled<StandardModeResult>();
    record.writeHLGSystemGamma = false;
    record.measurementData = filledAndParsedBack<MeasurementData>();
    record.measurementDataSecondary = filledAndParsedBack<MeasurementDataSecondary>();
    record.basicData = filledAndParsedBack<BasicData>();
    return record;
}

template <>
std::string filledAfterEmptyRoot<StandardModeResult>() {
    StandardModeResult record = filled<StandardModeResult>();
    record.hasMeasurementData = false;
    record.hasMeasurementDataSecondary = false;
    record.hasBasicData = false;
    return withClearFlags(describe(record));
}

}  // namespace lv::test

#include <tests/support/samples.h>

namespace lv::test {
namespace {

MeasurementDataObject filledRow(int seed) {
    const auto code = static_cast<unsigned int>(seed);
    MeasurementDataObject row;
    row.RGB = {code + 1, code + 2, code + 3};
    row.CMYK = {code + 4, code + 5, code + 6, code + 7};
    row.XYZ = {seed + 8, seed + 9, seed + 10};
    row.CIELAB = {seed + 11, -seed - 12, seed + 13};
    row.PQR = {seed + 14, seed + 15, -seed - 16};
    return row;
}

template <class Series>
Series filledSeries(int seed) {
    Series record;
    fillBase(record);
    record.objects = {filledRow(seed), filledRow(seed + 100)};
    record.parsed = true;
    return record;
}

}  // namespace

void describe(Description& out, const MeasurementDataObject& row) {
    out.member("RGB", row.RGB);
    out.member("CMYK", row.CMYK);
    out.member("XYZ", row.XYZ);
    out.member("CIELAB", row.CIELAB);
    out.member("PQR", row.PQR);
}

void describe(Description& out, const MeasurementData& record) {
    describeBase(out, record);
    out.rows("objects", record.objects);
    out.member("parsed", record.parsed);
}

template <>
MeasurementDataObject filled<MeasurementDataObject>() {
    return filledRow(0);
}

template <>
MeasurementData filled<MeasurementData>() {
    return filledSeries<MeasurementData>(0);
}

template <>
MeasurementDataSecondary filled<MeasurementDataSecondary>() {
    return filledSeries<MeasurementDataSecondary>(50);
}

}  // namespace lv::test

#pragma once

#include <tests/support/describe.h>

namespace lv::test {

/// What the getters of a record compute from its members; those of the records that have any.
inline void describeGetters(Description& /*out*/, const DataObject& /*record*/) {}

inline void describeGetters(Description& out, const BasicData& record) {
    out.member("correlationTargetWhite_x", record.correlationTargetWhite_x());
    out.member("justCalibratedWhite_x", record.justCalibratedWhite_x());
}

inline void describeGetters(Description& out, const MeasurementData& record) {
    out.member("getRootElementName", record.getRootElementName());
    for (const MeasurementDataObject& row : record.objects) {
        out.member("RGB_x", row.RGB_x());
        out.member("CMYK_x", row.CMYK_x());
        out.member("XYZ_x", row.XYZ_x());
        out.member("CIELAB_x", row.CIELAB_x());
        out.member("PQR_x", row.PQR_x());
    }
}

inline void describeGetters(Description& out, const MonitorParameter& record) {
    out.member("redLUT_x", record.redLUT_x());
    out.member("greenLUT_x", record.greenLUT_x());
    out.member("blueLUT_x", record.blueLUT_x());
    out.member("hlgSystemGamma_x", record.hlgSystemGamma_x());
    out.member("redGain_x", record.redGain_x());
    out.member("greenGain_x", record.greenGain_x());
    out.member("blueGain_x", record.blueGain_x());
    out.member("emulationMatrix_x", record.emulationMatrix_x());
}

inline void describeGetters(Description& out, const ParameterSetting& record) {
    out.member("value_x", record.gamma.value.value_x());
    out.member("hlgSystemGamma_x", record.gamma.value.hlgSystemGamma_x());
}

inline void describeGetters(Description& out, const ProfileData& record) {
    out.member("measuredXYZ_x", record.measuredXYZ_x());
    out.member("measuredXYZLimited109_x", record.measuredXYZLimited109_x());
    for (const auto* curve : {&record.redTargetCurve, &record.greenTargetCurve, &record.blueTargetCurve}) {
        out.member("formula_x", curve->value.formula_x());
        out.member("lut_x", curve->value.lut_x());
    }
}

inline void describeGetters(Description& out, const TargetSetting& record) {
    const TargetSetting::gamma_t& gamma = record.gamma.value;
    out.member("coordinate_x", record.whitePoint.value.coordinate_x());
    for (const auto* color : {&gamma.red, &gamma.green, &gamma.blue}) {
        out.member("formula_x", color->formula_x());
        out.member("lut_x", color->lut_x());
        out.member("lut24_x", color->lut24_x());
    }
    out.member("fileName_x", gamma.importedLutFile.fileName_x());
    out.member("hlgSystemGamma_x", gamma.hlgSystemGamma_x());
    out.member("isNative", record.gamut.value.isNative());
    out.member("red_x", record.gamut.value.red_x());
    out.member("green_x", record.gamut.value.green_x());
    out.member("blue_x", record.gamut.value.blue_x());
}

}  // namespace lv::test

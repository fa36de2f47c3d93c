#pragma once

#include <tests/support/describe.h>

#include <string>
#include <vector>

namespace lv::test {

// What the getters of a record compute from its members; those of the records that have any.

inline std::string shown(const std::vector<double>& values) {
    std::string text;
    for (const double value : values) {
        text += describe(value) + ' ';
    }
    return text;
}

template <class T>
std::string shown(const T& value) {
    return describe(value);
}

/// The values, a line each.
template <class... Ts>
std::string linesOf(const Ts&... values) {
    return ((shown(values) + '\n') + ...);
}

inline std::string gettersOf(const DataObject& /*record*/) {
    return "";
}

inline std::string gettersOf(const BasicData& record) {
    return linesOf(record.correlationTargetWhite_x(), record.justCalibratedWhite_x());
}

inline std::string gettersOf(const MeasurementData& record) {
    std::string text = linesOf(record.getRootElementName());
    for (const MeasurementDataObject& row : record.objects) {
        text += linesOf(row.RGB_x(), row.CMYK_x(), row.XYZ_x(), row.CIELAB_x(), row.PQR_x());
    }
    return text;
}

inline std::string gettersOf(const MonitorParameter& record) {
    return linesOf(record.redLUT_x(), record.greenLUT_x(), record.blueLUT_x(), record.hlgSystemGamma_x(),
                   record.redGain_x(), record.greenGain_x(), record.blueGain_x(), record.emulationMatrix_x(),
                   record.tableQuantity().factor);
}

inline std::string gettersOf(const ParameterSetting& record) {
    return linesOf(record.gamma.value.value_x(), record.gamma.value.hlgSystemGamma_x());
}

inline std::string gettersOf(const ProfileData& record) {
    std::string text = linesOf(record.measuredXYZ_x(), record.measuredXYZLimited109_x());
    for (const auto* curve : {&record.redTargetCurve, &record.greenTargetCurve, &record.blueTargetCurve}) {
        text += linesOf(curve->value.formula_x(), curve->value.lut_x());
    }
    return text;
}

inline std::string gettersOf(const TargetSetting& record) {
    const TargetSetting::gamma_t& gamma = record.gamma.value;
    const TargetSetting::gamut_t& gamut = record.gamut.value;
    std::string text =
        linesOf(record.whitePoint.value.coordinate_x(), gamma.importedLutFile.fileName_x(), gamma.hlgSystemGamma_x(),
                gamut.isNative(), gamut.red_x(), gamut.green_x(), gamut.blue_x());
    for (const auto* color : {&gamma.red, &gamma.green, &gamma.blue}) {
        text += linesOf(color->formula_x(), color->lut_x(), color->lut24_x());
    }
    return text;
}

}  // namespace lv::test

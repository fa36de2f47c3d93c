#pragma once

#include <tests/analysis/figures/ModeFigures_rows.h>

#include <lvdata/analysis/figures/ModeFigures.h>

#include <cmath>
#include <vector>

namespace lv::test {

/// X, Y and Z as a record stores them.
template <class Integer>
std::vector<Integer> stored(const std::vector<double>& XYZ) {
    std::vector<Integer> numbers;
    for (const double value : XYZ) {
        numbers.push_back(static_cast<Integer>(std::llround(value * 1000000)));
    }
    return numbers;
}

/// Adds a measurement.
inline void addRow(CalibrationModeResultObject& result, const std::vector<unsigned int>& RGB,
                   const std::vector<double>& XYZ) {
    MeasurementDataObject row;
    row.RGB = RGB;
    row.XYZ = stored<int>(XYZ);
    result.hasMeasurementData = true;
    result.measurementData.objects.push_back(row);
}

/// A result whose profile data has X, Y and Z of red, green, blue, white and black.
inline CalibrationModeResultObject measuredResult(const std::vector<std::vector<double>>& XYZ) {
    CalibrationModeResultObject result = resultOf(1);
    result.hasProfileData = true;
    result.profileData.measuredXYZ.set({stored<unsigned int>(XYZ.at(0)), stored<unsigned int>(XYZ.at(1)),
                                        stored<unsigned int>(XYZ.at(2)), stored<unsigned int>(XYZ.at(3)),
                                        stored<unsigned int>(XYZ.at(4))});
    return result;
}

inline analysis::ModeFigures figuresOf(const ColorModeSettingsObject& setting,
                                       const CalibrationModeResultObject& result, const analysis::KnownUnits& known) {
    ColorModeSettings settings;
    settings.objects = {setting};
    CalibrationModeResult results;
    results.objects = {result};
    return analysis::modeFigures(settings, results, known).at(0);
}

}  // namespace lv::test

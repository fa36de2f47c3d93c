#pragma once

#include <lvdata/analysis/figures/ModeFigures.h>
#include <lvdata/records/types.h>

#include <string>
#include <vector>

namespace lv::test {

inline const std::vector<unsigned int> whiteD65{95047000, 100000000, 108883000};

inline ColorModeSettingsObject settingOf(const std::string& type, unsigned int index = 1,
                                         const std::string& name = "") {
    ColorModeSettingsObject setting;
    setting.type.set(type);
    setting.index.set(index);
    setting.name.set(name);
    return setting;
}

inline CalibrationModeResultObject resultOf(unsigned int index, const std::string& name = "") {
    CalibrationModeResultObject result;
    result.type.set(types::colorMode::calibration);
    result.index.set(index);
    result.name.set(name);
    return result;
}

/// A target for x 0.3127, y 0.3290.
inline ColorModeSettingsObject settingWithCoordinate() {
    ColorModeSettingsObject setting = settingOf(types::colorMode::calibration);
    setting.targetSetting.value.whitePoint.set({types::targetWhitePoint::coordinate, 0, 3127, 3290});
    return setting;
}

inline std::vector<analysis::ModeFigures> figuresOf(const std::vector<ColorModeSettingsObject>& settings,
                                                    const std::vector<CalibrationModeResultObject>& results) {
    ColorModeSettings allSettings;
    allSettings.objects = settings;
    CalibrationModeResult allResults;
    allResults.objects = results;
    return analysis::modeFigures(allSettings, allResults);
}

}  // namespace lv::test

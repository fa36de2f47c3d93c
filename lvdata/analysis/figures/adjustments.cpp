#include <lvdata/analysis/figures/adjustments.h>

#include <lvdata/analysis/figures/stored_values.h>
#include <lvdata/analysis/figures/target_texts.h>

namespace lv::analysis {
namespace {

/// In the order of `SixColours`.
template <class Stored>
std::array<int, 6> sixOf(const Stored& stored) {
    return {stored.red, stored.yellow, stored.green, stored.cyan, stored.blue, stored.magenta};
}

template <class Stored>
void take(ModeFigures& figures, std::string_view name, std::string_view place, const property<Stored>& stored) {
    if (stored.hasValue) {
        figures.sixColours.push_back({name, place, sixOf(stored.value)});
    }
}

void takeMonitor(ModeFigures& figures, const MonitorParameter& parameter) {
    take(figures, "Hue", "monitor", parameter.hue);
    take(figures, "Saturation", "monitor", parameter.saturation);
    take(figures, "Lightness", "monitor", parameter.lightness);
    figures.tables[0] = parameter.redLUT.hasValue ? parameter.redLUT_x() : std::vector<double>();
    figures.tables[1] = parameter.greenLUT.hasValue ? parameter.greenLUT_x() : std::vector<double>();
    figures.tables[2] = parameter.blueLUT.hasValue ? parameter.blueLUT_x() : std::vector<double>();
}

void takeTarget(ModeFigures& figures, const TargetSetting::advanced_settings_t& settings) {
    take(figures, "Hue", "target", settings.sixColorsHue);
    take(figures, "Saturation", "target", settings.sixColorsSaturation);
    take(figures, "Lightness", "target", settings.sixColorsLightness);
}

MeasuredBy measuredByOf(const BasicData& data) {
    MeasuredBy by;
    by.sensorName = textOf(data.colorSensorName);
    by.sensorSerial = textOf(data.colorSensorSerial);
    by.referenceName = textOf(data.referenceColorSensorName);
    by.referenceSerial = textOf(data.referenceColorSensorSerial);
    by.correlationDate = textOf(data.colorSensorCorrelationDate);
    by.software = textOf(data.software);
    by.executor = textOf(data.executorType);
    by.executedDate = textOf(data.executedDate);
    by.usageHours = data.usageHours.hasValue ? std::to_string(data.usageHours.value) : "";
    return by;
}

}  // namespace

void takeAdjustments(ModeFigures& figures, const ColorModeSettingsObject* setting,
                     const CalibrationModeResultObject* result) {
    if (result != nullptr && result->hasBasicData) {
        figures.measuredBy = measuredByOf(result->basicData);
    }
    if (result != nullptr && result->hasMonitorParameter) {
        takeMonitor(figures, result->monitorParameter);
    }
    const TargetSetting* const target = setting != nullptr ? targetOf(*setting) : nullptr;
    if (target != nullptr && target->advancedSettings.hasValue) {
        takeTarget(figures, target->advancedSettings.value);
    }
}

}  // namespace lv::analysis

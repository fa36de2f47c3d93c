#include <benchmarks/Sequence.h>
#include <benchmarks/documents.h>

#include <cmath>
#include <utility>

namespace benchmarks {
namespace {

template <class T>
lv::property<T> set(T value) {
    lv::property<T> result;
    result.set(std::move(value));
    return result;
}

std::vector<double> curve(std::size_t entries, double gamma) {
    std::vector<double> values(entries);
    for (std::size_t index = 0; index < entries; ++index) {
        values[index] = std::pow(static_cast<double>(index) / static_cast<double>(entries - 1), gamma);
    }
    return values;
}

lv::ParameterSetting parameterSetting() {
    lv::ParameterSetting setting;
    setting.brightness = set(lv::ParameterSetting::brightness_t{"Candela", 120});
    setting.whitePoint = set(lv::ParameterSetting::white_point_t{"Temperature", 6500, ""});
    setting.gamma = set(lv::ParameterSetting::gamma_t{"Fixed", 220, "PQ", "Off", 120});
    setting.gamut = set(lv::ParameterSetting::gamut_t{"Fixed", "Native", 1});
    setting.limited109Setting = set(1U);
    return setting;
}

lv::TargetSetting::gamma_t formulaCurves() {
    lv::TargetSetting::gamma_t gamma;
    for (auto* const channel : {&gamma.red, &gamma.green, &gamma.blue}) {
        channel->type = "Formula";
        channel->formula_x(2.2);
    }
    return gamma;
}

lv::TargetSetting::advanced_settings_t advancedSettings(Sequence& numbers) {
    const auto step = [&numbers] {
        return static_cast<int>(numbers.below(41)) - 20;
    };
    lv::TargetSetting::advanced_settings_t settings;
    settings.hue = set(step());
    settings.saturation = set(step());
    settings.blackLevel = set(lv::TargetSetting::black_level_t{step(), step(), step()});
    for (auto* const group : {&settings.sixColorsHue, &settings.sixColorsSaturation, &settings.sixColorsLightness}) {
        group->set({step(), step(), step(), step(), step(), step()});
    }
    return settings;
}

lv::TargetSetting targetSetting(Sequence& numbers) {
    lv::TargetSetting target;
    target.lumivaleVersion = set(std::string("7.2.1"));
    target.fineContrast = set(std::string("Off"));
    target.brightness = set(lv::TargetSetting::level_t{"Value", 80 + numbers.below(80)});
    target.blackLevel = set(lv::TargetSetting::level_t{"Minimum", 0});
    target.whitePoint = set(lv::TargetSetting::white_point_t{"Coordinate", 0, 3127, 3290});
    target.whitePointV7 = set(lv::TargetSetting::standard_t{"Standard", "D65"});
    target.gamma = set(formulaCurves());
    target.gammaV7 = set(lv::TargetSetting::standard_t{"Standard", "Gamma 2.2"});
    target.gamut = set(lv::TargetSetting::gamut_t{{6800, 3200}, {2650, 6900}, {1500, 600}, "Wide", 1});
    target.gamutV7 = set(lv::TargetSetting::standard_t{"Standard", "BT.2020"});
    target.grayBalance = set(numbers.below(3));
    target.creationType = set(std::string("Manual"));
    target.advancedSettings = set(advancedSettings(numbers));
    target.optimizeForLimited109 = set(std::string("Off"));
    return target;
}

lv::ProfilePolicy profilePolicy() {
    lv::ProfilePolicy policy;
    policy.updateRule = set(std::string("EveryCalibration"));
    policy.profileDescription = set(std::string("Wide gamut at 120 cd/m2"));
    policy.profileName = set(std::string("wide-120"));
    policy.profileVersion = set(std::string("4.4"));
    policy.toneCurve = set(std::string("Lut"));
    policy.reflectBlackLevels = set(true);
    policy.create3DLut = set(false);
    return policy;
}

lv::ColorModeSettingsObject colorMode(unsigned int index, Sequence& numbers) {
    lv::ColorModeSettingsObject mode;
    const bool standard = index % 4 == 0;
    mode.type = set(std::string(standard ? "Standard" : "Calibration"));
    mode.index = set(index);
    mode.name = set("Mode " + std::to_string(index));
    mode.availability = set(1U);
    if (standard) {
        mode.parameterSetting = set(parameterSetting());
    } else {
        mode.targetSetting = set(targetSetting(numbers));
    }
    mode.profilePolicy = set(profilePolicy());
    return mode;
}

lv::SelfCalibrationSchedule schedule() {
    lv::SelfCalibrationSchedule result;
    result.type = set(0x32U);
    result.thWeek = set(1U);
    result.weekday = set(2U);
    result.hour = set(21U);
    result.minute = set(30U);
    result.timing = set(std::string("PowerSave"));
    return result;
}

lv::MonitorInfo configuredMonitor(unsigned int modes) {
    Sequence numbers(1);
    lv::MonitorInfo monitor;
    monitor.uuid = set(std::string("7f6a2c1e-90b4-4d0e-9a5b-1d1b7c7f2a10"));
    lv::MonitorConfiguration configuration;
    configuration.name = set(std::string("Grading suite, left"));
    configuration.model = set(std::string("WG-27"));
    configuration.serial = set(std::string("00417723"));
    for (unsigned int index = 0; index < modes; ++index) {
        configuration.colorModeSettings.value.objects.push_back(colorMode(index, numbers));
    }
    configuration.colorModeSettings.hasValue = true;
    configuration.selfCalibrationSchedule = set(schedule());
    configuration.standardModeCalibration = set(1U);
    configuration.keyLock = set(0U);
    monitor.monitorConfiguration = set(std::move(configuration));
    return monitor;
}

lv::MeasurementData measurements(std::size_t rows, Sequence& numbers) {
    const auto fraction = [&numbers] {
        return static_cast<double>(numbers.below(1000)) / 999.0;
    };
    lv::MeasurementData data;
    data.objects.resize(rows);
    for (auto& row : data.objects) {
        colour shown;
        shown.red = fraction();
        shown.green = fraction();
        shown.blue = fraction();
        row.RGB_x(shown);
        colour measured;
        measured.X = 0.01 + 114.0 * fraction();
        measured.Y = 0.01 + 120.0 * fraction();
        measured.Z = 0.01 + 130.0 * fraction();
        measured.L = 100.0 * fraction();
        measured.a = 160.0 * fraction() - 80.0;
        measured.b = 160.0 * fraction() - 80.0;
        row.XYZ_x(measured);
        row.CIELAB_x(measured);
    }
    return data;
}

lv::MonitorParameter monitorParameter(unsigned int index) {
    lv::MonitorParameter parameter;
    parameter.brightness = set(60 + index);
    parameter.contrast = set(100U);
    parameter.isHDRLUT = set(index % 2);
    parameter.redLUT_x(curve(1024, 2.2));
    parameter.greenLUT_x(curve(1024, 2.21));
    parameter.blueLUT_x(curve(1024, 2.19));
    parameter.redGain_x(1.0);
    parameter.greenGain_x(0.98);
    parameter.blueGain_x(0.95);
    return parameter;
}

lv::ProfileData profileData() {
    lv::ProfileData profile;
    profile.description = set(std::string("Wide gamut"));
    PrimaryColours measured;
    for (auto* const primary : {&measured.red, &measured.green, &measured.blue, &measured.white, &measured.black}) {
        primary->X = 60.5;
        primary->Y = 50.25;
        primary->Z = 40.125;
    }
    profile.measuredXYZ_x(measured);
    double gamma = 2.2;
    for (auto* const target : {&profile.redTargetCurve, &profile.greenTargetCurve, &profile.blueTargetCurve}) {
        target->value.type = "Lut";
        target->value.lut_x(curve(1024, gamma));
        target->hasValue = true;
        gamma += 0.01;
    }
    return profile;
}

lv::BasicData basicData(unsigned int index) {
    lv::BasicData data;
    data.usageHours = set(1200 + index);
    data.usageMinutes = set(index % 60);
    data.colorSensorName = set(std::string("Built-in sensor"));
    data.colorSensorSerial = set(std::string("S-20931"));
    data.software = set(std::string("Lumivale 7.2.1"));
    data.executedDate = set(std::string("2026-02-14T21:30:00"));
    data.executorType = set(std::string("SelfCalibration"));
    return data;
}

lv::CalibrationModeResultObject calibratedMode(unsigned int index, std::size_t rows, Sequence& numbers) {
    lv::CalibrationModeResultObject result;
    result.type = set(std::string("Calibration"));
    result.index = set(index);
    result.name = set("Mode " + std::to_string(index));
    result.calibratedTime = set(std::string("2026-02-14T21:45:00"));
    result.basicData = basicData(index);
    result.hasBasicData = true;
    result.measurementData = measurements(rows, numbers);
    result.hasMeasurementData = rows != 0;
    result.monitorParameter = monitorParameter(index);
    result.hasMonitorParameter = true;
    result.profileData = profileData();
    result.hasProfileData = true;
    return result;
}

void addResults(lv::MonitorInfo& monitor, unsigned int modes, std::size_t rows) {
    Sequence numbers(2);
    auto& results = monitor.calibrationModeResult.value.objects;
    results.reserve(modes);
    for (unsigned int index = 0; index < modes; ++index) {
        results.push_back(calibratedMode(index, rows, numbers));
    }
    monitor.calibrationModeResult.hasValue = true;
}

lv::CandelaMapEntry map(Sequence& numbers) {
    lv::CandelaMapEntry entry;
    for (unsigned int index = 0; index < 25U * 25U; ++index) {
        entry.values.push_back(11500 + numbers.below(1000));
    }
    entry.updatedAt = "2026-02-14T22:00:00";
    entry.valid = true;
    return entry;
}

}  // namespace

Document smallDocument() {
    return {"small", configuredMonitor(4)};
}

Document typicalDocument(unsigned int factor) {
    Document document{factor == 1 ? "typical" : "typical x" + std::to_string(factor), configuredMonitor(10 * factor)};
    addResults(document.monitor, 10 * factor, 300);
    Sequence numbers(3);
    document.monitor.candelaMap.hasValue = true;
    document.monitor.candelaMap.value.uniformity = map(numbers);
    document.monitor.candelaMap.value.brightness = map(numbers);
    return document;
}

Document wideDocument() {
    return {"wide", configuredMonitor(480)};
}

Document arraysDocument() {
    Document document{"arrays", configuredMonitor(1)};
    addResults(document.monitor, 20, 0);
    return document;
}

std::string unknownChildrenText(unsigned int children) {
    lv::MonitorParameter parameter;
    parameter.brightness = set(120U);
    std::string text = parameter.toXMLString(false, false);
    std::string unknown;
    for (unsigned int index = 0; index < children; ++index) {
        unknown += "<Unknown" + std::to_string(index) + ">1</Unknown" + std::to_string(index) + '>';
    }
    return text.insert(text.find('>') + 1, unknown);
}

std::string rowsText(unsigned int rows) {
    Sequence numbers(4);
    return measurements(rows, numbers).toXMLString(false, false);
}

std::vector<Document> allDocuments() {
    return {smallDocument(), typicalDocument(), wideDocument(), arraysDocument()};
}

}  // namespace benchmarks

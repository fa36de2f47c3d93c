#include <tests/samples/studio/settings.h>

#include <tests/samples/studio/ColourMode.h>
#include <tests/samples/studio/targets.h>

namespace studio {
namespace {

lv::ParameterSetting desktopParameters() {
    lv::ParameterSetting parameters;
    parameters.brightness.set({"Candela", 140});
    parameters.whitePoint.set({"Temperature", 6500, ""});
    parameters.gamma.set({"Value", 0, "", "", 0});
    parameters.gamma.value.value_x(photoGamma);
    parameters.gamut.set({"Fixed", "sRGB", 1});
    parameters.limited109Setting.set(0);
    return parameters;
}

lv::ParameterSetting signalParameters() {
    lv::ParameterSetting parameters;
    parameters.brightness.set({"SyncSignal", 0});
    parameters.whitePoint.set({"SyncSignal", 0, ""});
    parameters.gamma.set({"SyncSignal", 0, "", "", 0});
    parameters.gamut.set({"SyncSignal", "", 0});
    return parameters;
}

lv::ColorModeSettingsObject row(const char* type, unsigned int index, const char* name) {
    lv::ColorModeSettingsObject row;
    row.type.set(type);
    row.index.set(index);
    row.name.set(name);
    row.availability.set(1);
    return row;
}

lv::ColorModeSettingsObject parameterRow(const char* type, unsigned int index, const char* name,
                                         const lv::ParameterSetting& parameters) {
    lv::ColorModeSettingsObject result = row(type, index, name);
    result.parameterSetting.set(parameters);
    result.profilePolicy.set(lv::ProfilePolicy());
    return result;
}

lv::ProfilePolicy profilePolicy(const ColourMode& mode) {
    const std::string name = mode.name;
    lv::ProfilePolicy policy;
    policy.updateRule.set("AfterCalibration");
    policy.profileDescription.set("Studio wall, " + name);
    policy.profileName.set("Studio wall - " + name + ".icc");
    policy.content.set("Measured");
    policy.profileVersion.set("4.4");
    policy.toneCurve.set(mode.curve == ToneCurve::gamma ? "Parametric" : "Table");
    policy.reflectBlackLevels.set(true);
    policy.create3DLut.set(mode.curve == ToneCurve::hlg);
    policy.createLuminanceTag.set(true);
    return policy;
}

lv::ColorModeSettingsObject calibrationRow(const ColourMode& mode) {
    lv::ColorModeSettingsObject result = row("Calibration", mode.index, mode.name);
    result.targetSetting.set(targetSetting(mode));
    result.profilePolicy.set(profilePolicy(mode));
    return result;
}

lv::ColorModeSettings colorModeSettings() {
    lv::ColorModeSettings settings;
    settings.objects.push_back(parameterRow("Standard", 0, "Desktop", desktopParameters()));
    settings.objects.push_back(parameterRow("SyncSignal", 1, "Follow signal", signalParameters()));
    for (const ColourMode& mode : colourModes) {
        settings.objects.push_back(calibrationRow(mode));
    }
    return settings;
}

/// On the first Monday of every month at 6:30.
lv::SelfCalibrationSchedule selfCalibrationSchedule() {
    lv::SelfCalibrationSchedule schedule;
    schedule.type.set(0x32);
    schedule.thWeek.set(1);
    schedule.weekday.set(1);
    schedule.hour.set(6);
    schedule.minute.set(30);
    schedule.timing.set("PowerSave");
    return schedule;
}

}  // namespace

lv::MonitorConfiguration monitorConfiguration() {
    lv::MonitorConfiguration configuration;
    configuration.name.set("Studio wall");
    configuration.model.set("LV-27W");
    configuration.serial.set("27W-000417");
    configuration.colorModeSettings.set(colorModeSettings());
    configuration.selfCalibrationSchedule.set(selfCalibrationSchedule());
    configuration.standardModeCalibration.set(1);
    configuration.keyLock.set(0);
    return configuration;
}

}  // namespace studio

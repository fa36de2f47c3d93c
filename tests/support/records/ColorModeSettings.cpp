#include <tests/support/samples.h>

#include <string>
#include <utility>

namespace lv::test {

void describe(Description& out, const ColorModeSettingsObject& row) {
    out.member("type", row.type);
    out.member("index", row.index);
    out.member("name", row.name);
    out.member("availability", row.availability);
    out.member("parameterSetting", row.parameterSetting);
    out.member("targetSetting", row.targetSetting);
    out.member("profilePolicy", row.profilePolicy);
}

void describe(Description& out, const ColorModeSettings& record) {
    describeBase(out, record);
    out.rows("objects", record.objects);
    out.member("parsed", record.parsed);
}

namespace {

ColorModeSettingsObject rowOf(ParameterSetting parameters, TargetSetting target, ProfilePolicy policy) {
    ColorModeSettingsObject row;
    row.type.set("Vendor");
    row.index.set(61);
    row.name.set("Mode 62");
    row.availability.set(63);
    row.parameterSetting.set(std::move(parameters));
    row.targetSetting.set(std::move(target));
    row.profilePolicy.set(std::move(policy));
    return row;
}

/// The row as a mode of that type; its number stands in each of its records.
ColorModeSettingsObject numbered(ColorModeSettingsObject row, const std::string& type, unsigned int number) {
    row.type.set(type);
    row.index.set(number);
    row.name.set("Mode " + std::to_string(number));
    row.availability.set(10 * number);
    row.parameterSetting.value.version.set(100 + number);
    row.targetSetting.value.version.set(200 + number);
    row.profilePolicy.value.version.set(300 + number);
    return row;
}

/// One row of each type that the writer tells apart, and one of another.
ColorModeSettings everyTypeOf(const ColorModeSettingsObject& row) {
    ColorModeSettings record;
    fillBase(record);
    record.parsed = true;
    record.objects = {numbered(row, "Standard", 1), numbered(row, "SyncSignal", 2), numbered(row, "Calibration", 3),
                      numbered(row, "Vendor", 4)};
    return record;
}

}  // namespace

template <>
ColorModeSettingsObject filled<ColorModeSettingsObject>() {
    return rowOf(filled<ParameterSetting>(), filled<TargetSetting>(), filled<ProfilePolicy>());
}

template <>
ColorModeSettings filled<ColorModeSettings>() {
    return everyTypeOf(filled<ColorModeSettingsObject>());
}

template <>
ColorModeSettings filledAndParsedBack<ColorModeSettings>() {
    ColorModeSettings record =
        everyTypeOf(rowOf(filledAndParsedBack<ParameterSetting>(), filledAndParsedBack<TargetSetting>(),
                          filledAndParsedBack<ProfilePolicy>()));
    record.writeHLGSystemGamma = false;
    for (ColorModeSettingsObject& row : record.objects) {
        if (row.type.value == "Calibration" || row.type.value == "Vendor") {
            row.parameterSetting = {};
        }
        if (row.type.value != "Calibration") {
            row.targetSetting = {};
        }
    }
    return record;
}

}  // namespace lv::test
